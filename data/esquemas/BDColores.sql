-- The colours database: named colours (0x00BBGGRR) offered where a colour is
-- chosen, copied to BDatos/BDColores.mdb at the first start.
CREATE TABLE Colores (Numero INTEGER, Nombre TEXT, Color INTEGER);
INSERT INTO Colores VALUES (1, 'Blanco', 16777215);
INSERT INTO Colores VALUES (2, 'Negro', 0);
INSERT INTO Colores VALUES (3, 'Rojo', 255);
INSERT INTO Colores VALUES (4, 'Verde', 65280);
INSERT INTO Colores VALUES (5, 'Azul', 16711680);
INSERT INTO Colores VALUES (6, 'Amarillo Claro', 14085092);
INSERT INTO Colores VALUES (7, 'Crema', 14211322);
INSERT INTO Colores VALUES (8, 'Celeste', 15915489);
INSERT INTO Colores VALUES (9, 'Rosado', 13492732);
INSERT INTO Colores VALUES (10, 'Fondo de Mensaje', 14087423);
