-- A building project (.plm): the blank template Proyecto.nivo.
-- Booleans are stored as -1 (true) and 0; dates as "dd/MM/yyyy" text.
-- FormatoColor, Empresa and Titulo serve the data report, which copies a
-- project into a file of this same form.
CREATE TABLE DatosGenerales (
  Proyecto TEXT, Ubicacion TEXT, Calculista TEXT, Cliente TEXT, Fecha TEXT, Comentario TEXT,
  OpcionUsoPiezas INTEGER, OpcionPresionInicial INTEGER,
  Valor1 REAL, Valor2 REAL, Valor3 REAL, Velocidad REAL,
  OpcionDiametro INTEGER, DiametroMinimo INTEGER, OpcionPerdidas INTEGER, CoeficienteC REAL,
  OpcionPresionM INTEGER, PresionM REAL,
  FormatoColor INTEGER, Empresa TEXT, Titulo TEXT
);
CREATE TABLE DatosRamales (
  Numero INTEGER, NodoI TEXT, Nodoj TEXT, longitudReal REAL, "OpcionDiseño" INTEGER,
  ValvulaR REAL, Comentario TEXT, Predimensionado TEXT, Reduccion TEXT,
  NPiezas INTEGER, NConexiones INTEGER
);
CREATE INDEX DatosRamales_Numero ON DatosRamales (Numero);
CREATE TABLE DatosNodos (Numero INTEGER, Nodo TEXT, CotaPiso REAL);
CREATE TABLE DatosPiezas (
  Ramal INTEGER, Clave INTEGER, Pieza TEXT, UnidadesGasto REAL, Cantidad INTEGER, Posicion INTEGER
);
CREATE INDEX DatosPiezas_Ramal ON DatosPiezas (Ramal, Posicion);
CREATE TABLE DatosConexiones (
  Ramal INTEGER, Clave INTEGER, Conexion TEXT, LongitudEquivalente REAL, Cantidad INTEGER,
  OpcionAutomatico INTEGER, Posicion INTEGER
);
CREATE INDEX DatosConexiones_Ramal ON DatosConexiones (Ramal, Posicion);
CREATE TABLE ImgPiezas (Clave INTEGER, ExisteFoto INTEGER, Foto BLOB);
CREATE TABLE ImgConexiones (Clave INTEGER, ExisteFoto INTEGER, Foto BLOB);
