-- The report tables of a building project: the blank template Trabajo.nivo,
-- copied to Trabajo/Trabajo.mdb at every start.
CREATE TABLE DatosGenerales (
  Proyecto TEXT, Ubicacion TEXT, Calculista TEXT, Comentario TEXT, Fecha TEXT, Empresa TEXT,
  FormatoColor INTEGER, Titulo1 TEXT, Titulo2 TEXT, Version TEXT, AlturaTanque REAL,
  OpcionPresionInicial INTEGER, Valor1 REAL, Valor2 REAL, Valor3 REAL, PresionMinima REAL,
  Caudal REAL, NodoDesfaborable TEXT, Monto1 REAL, Opcion1 INTEGER
);
CREATE TABLE ImpreUnidadesGasto (
  Numero INTEGER, Nodoj TEXT, NodoI TEXT, Descripcion TEXT, Cantidad INTEGER, PorPieza REAL,
  SubTotal REAL, Total REAL, Gasto REAL, Final INTEGER
);
CREATE TABLE ImpreLongitudesEquivalentes (
  Numero INTEGER, NodoI TEXT, Nodoj TEXT, Descripcion TEXT, Diametro TEXT, Cantidad REAL,
  PorPieza REAL, SubTotal REAL, Total REAL, Final INTEGER
);
CREATE TABLE ImprePresiones (
  Numero INTEGER, NodoI TEXT, Nodoj TEXT, Caudal REAL, Diametro TEXT, longitudReal REAL,
  LongitudEquivalente REAL, LongitudTotal REAL, Velocidad REAL, PerdidaUnitaria REAL,
  PerdidaTotal REAL, CotaP_Atras REAL, CotaP_Adelante REAL, RestaCotas REAL, ValvulaR REAL,
  CargaDisponible REAL
);
CREATE TABLE ImpreComputosPiezas (Descripcion TEXT, Cantidad INTEGER);
CREATE TABLE ImpreComputosConexiones (Descripcion TEXT, Cantidad INTEGER);
CREATE TABLE ImpreComputosReducciones (Descripcion TEXT, Cantidad INTEGER);
CREATE TABLE ImpreComputosTuberias (Descripcion TEXT, Cantidad REAL);
CREATE TABLE TanqueHidroneumatico (
  Metodo TEXT, NumeroMetodo INTEGER, NumeroPiezas INTEGER, FactorPeerlees REAL, Dotacion REAL,
  Caudal REAL, Porcentaje REAL, PresionMinima REAL, PresionMaxima REAL, Arranques REAL,
  Succion REAL, OpcionK REAL, QB REAL, VolumenTotal REAL, VolumenMinimo REAL, VolumenUtil REAL,
  VolumenMaximo REAL, PotenciaBomba REAL, PotenciaMotor REAL
);
