-- The result tables of an aqueduct report: the blank template
-- Resultados.nivo, copied to Trabajo/Resultados.mdb at every start.
CREATE TABLE Generales (
  Proyecto TEXT, Ubicacion TEXT, Calculista TEXT, Fecha TEXT, Usuario TEXT, Version TEXT,
  NumeroTramos INTEGER, Color INTEGER, Minimo INTEGER, Maximo INTEGER, Caso TEXT
);
CREATE TABLE Tramos (
  Numero INTEGER, NodoInicial TEXT, NodoFinal TEXT, longitudReal REAL, LongitudCalculo REAL,
  Diametro REAL, FactorC INTEGER, Caudal REAL, Velocidad REAL, Perdidas REAL, HF REAL
);
CREATE TABLE Nodos (
  Numero INTEGER, Nodo TEXT, CotaTerreno REAL, DemandaReal REAL, DemandaCalculo REAL,
  CotaPiezometrica REAL, Presion REAL, TramosConectados INTEGER, NombreTramos TEXT
);
