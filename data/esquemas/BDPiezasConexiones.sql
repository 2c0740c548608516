-- The catalogue of fixtures and fittings: BDPiezasConexiones.nivo, copied to
-- BDatos/BD_Piezas_Conexiones.mdb at the first start.  The rows come from
-- data/catalogo; the photographs are drawn by the build.
CREATE TABLE Piezas (
  ClavePieza INTEGER UNIQUE, NombrePieza TEXT, PrivadoTotal REAL, PrivadoFriaCaliente REAL,
  PublicoTotal REAL, PublicoFriaCaliente REAL, ExisteFoto INTEGER, Foto BLOB
);
CREATE TABLE Conexiones (
  ClaveConexion INTEGER UNIQUE, NombreConexion TEXT, LongitudEquivalente REAL, Automatico INTEGER,
  ExisteFoto INTEGER, Foto BLOB
);
