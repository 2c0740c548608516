-- An aqueduct project (.acu): the blank template Malla.nivo.
-- Usuario serves the data report, which copies a project into a file of
-- this same form.
CREATE TABLE Generales (
  Proyecto TEXT, Ubicacion TEXT, Calculista TEXT, Fecha TEXT, Comentario TEXT,
  OpcionConsumo INTEGER, OpcionDiametro INTEGER, C INTEGER, CasoPorcentaje INTEGER,
  DeltaPorcentaje REAL, FactorQMax REAL, FactorIncendio REAL, LitrosIncendio REAL,
  NumeroTramos INTEGER, Usuario TEXT
);
-- X and Y (metres, null when the node has none) come last and may be missing
-- in files of earlier versions: readers look for them by name.
CREATE TABLE Nodos (
  Numero INTEGER, Nodos TEXT, ConsumoMedio REAL, CotaTerreno REAL, CotaBombaEstanque REAL,
  X REAL, Y REAL
);
CREATE INDEX Nodos_Numero ON Nodos (Numero);
CREATE TABLE Tramos (
  Numero INTEGER, Inicio TEXT, Final TEXT, Longitud REAL, Diametro REAL, CoeficienteC INTEGER, Demanda REAL
);
CREATE INDEX Tramos_Numero ON Tramos (Numero);
