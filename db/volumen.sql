-- Volume for the plan test and the benchmark: adds to the tables of
-- schema.sql @filas rows per table to tenant @inquilino and @filas_vecino
-- rows to each of @vecinos other tenants ('v01', 'v02', ...), made by the
-- Sequence engine (MariaDB) in seconds. Set the four variables first.
-- Every tenant's rows refer to its own rows as the host's would:
--   customer n: city 'Ciudad 1+n%50', category, type and zone 1001+n%20,
--               place 'Lugar 400+n%400' (a place of that zone)
--   one row in ten is removed (est=0) where the table has est
--   article n: unit abbreviation 'm1+n%50' (unit 'Medida 1+n%50')
--   VAT dates: the days before this year, this year's are left to the caller
-- Tables without a tenant (mProveedor, martexpira, tcabfac, tCuePagoCli)
-- get @filas rows. Each statement fills one table, so a caller may run only
-- the tables it needs.

CREATE TABLE IF NOT EXISTS volumen_inquilinos (
  id    VARCHAR(20) NOT NULL,
  filas INT NOT NULL,
  base  INT NOT NULL,  -- first of the tenant's own codes where the key is global
  PRIMARY KEY (id)
) ENGINE=InnoDB;
DELETE FROM volumen_inquilinos;
INSERT INTO volumen_inquilinos (id, filas, base)
  SELECT @inquilino, @filas, 10000000 UNION ALL
  SELECT CONCAT('v', LPAD(seq, 2, '0')), @filas_vecino, 10000000 * (seq + 1) FROM seq_1_to_99 WHERE seq <= @vecinos;

INSERT INTO lsCiudades (id, ciu)
  SELECT t.id, CONCAT('Ciudad ', s.seq) FROM volumen_inquilinos t JOIN seq_1_to_10000000 s ON s.seq <= t.filas;
INSERT INTO lsDepartam (id, depa)
  SELECT t.id, CONCAT('Departamento ', s.seq) FROM volumen_inquilinos t JOIN seq_1_to_10000000 s ON s.seq <= t.filas;
INSERT INTO lsUsos (id, uso)
  SELECT t.id, CONCAT('Uso ', s.seq) FROM volumen_inquilinos t JOIN seq_1_to_10000000 s ON s.seq <= t.filas;
INSERT INTO lsComponente (id, com)
  SELECT t.id, CONCAT('Componente ', s.seq) FROM volumen_inquilinos t JOIN seq_1_to_10000000 s ON s.seq <= t.filas;
INSERT INTO lsContenidos (cod, id, nom)
  SELECT t.base + s.seq, t.id, CONCAT('Objeto ', s.seq) FROM volumen_inquilinos t JOIN seq_1_to_10000000 s ON s.seq <= t.filas;
INSERT INTO aMedidas (id, med, abr)
  SELECT t.id, CONCAT('Medida ', s.seq), CONCAT('m', s.seq) FROM volumen_inquilinos t JOIN seq_1_to_10000000 s ON s.seq <= t.filas;
INSERT INTO lsPaises (id, nom)
  SELECT t.id, CONCAT('País ', s.seq) FROM volumen_inquilinos t JOIN seq_1_to_10000000 s ON s.seq <= t.filas;
INSERT INTO lscontratos (id, con, est)
  SELECT t.id, CONCAT('CT-', s.seq), s.seq % 10 <> 0 FROM volumen_inquilinos t JOIN seq_1_to_10000000 s ON s.seq <= t.filas;
INSERT INTO lsCuentas (id, cta, est)
  SELECT t.id, CONCAT('9.', s.seq, ' Cuenta'), s.seq % 10 <> 0 FROM volumen_inquilinos t JOIN seq_1_to_10000000 s ON s.seq <= t.filas;
INSERT INTO mCatClie (id, cod, cat, des, est)
  SELECT t.id, 1000 + s.seq, CONCAT('Categoría ', s.seq), 'Generada', s.seq % 10 <> 0 FROM volumen_inquilinos t JOIN seq_1_to_10000000 s ON s.seq <= t.filas;
INSERT INTO Cargos (cod, id, car, des, est)
  SELECT t.base + s.seq, t.id, CONCAT('Cargo ', s.seq), 'Generado', s.seq % 10 <> 0 FROM volumen_inquilinos t JOIN seq_1_to_10000000 s ON s.seq <= t.filas;
INSERT INTO SRI_Documentos (id, cin, des, est)
  SELECT t.id, LPAD(s.seq % 1000, 3, '0'), CONCAT('Documento ', s.seq), s.seq % 10 <> 0 FROM volumen_inquilinos t JOIN seq_1_to_10000000 s ON s.seq <= t.filas;
INSERT INTO SRI_Sustentos (id, cin, des, est)
  SELECT t.id, LPAD(s.seq % 1000, 3, '0'), CONCAT('Sustento ', s.seq), s.seq % 10 <> 0 FROM volumen_inquilinos t JOIN seq_1_to_10000000 s ON s.seq <= t.filas;
INSERT INTO mTipClie (id, cod, tip, des, cre, pla, descu, inte, est)
  SELECT t.id, 1000 + s.seq, CONCAT('Tipo ', s.seq), 'Generado', 1000, 30, 5, 0, s.seq % 10 <> 0 FROM volumen_inquilinos t JOIN seq_1_to_10000000 s ON s.seq <= t.filas;
INSERT INTO lsBancos (id, nom, tar, cor, dife, est)
  SELECT t.id, CONCAT('Banco ', s.seq), s.seq % 2, 1.5, 0.5, s.seq % 10 <> 0 FROM volumen_inquilinos t JOIN seq_1_to_10000000 s ON s.seq <= t.filas;
INSERT INTO mZonaClie (id, cod, zon, des, est)
  SELECT t.id, 1000 + s.seq, CONCAT('Zona ', s.seq), 'Generada', s.seq % 10 <> 0 FROM volumen_inquilinos t JOIN seq_1_to_10000000 s ON s.seq <= t.filas;
INSERT INTO mZonaLugar (id, zon, lug, ord, est)
  SELECT t.id, 1001 + s.seq % 20, CONCAT('Lugar ', s.seq), s.seq % 100, 1 FROM volumen_inquilinos t JOIN seq_1_to_10000000 s ON s.seq <= t.filas;
INSERT INTO empresas (id, emp, act, suc, selec, art, nart, dir, tel, ciu, prov, est)
  SELECT t.id, CONCAT('Empresa ', s.seq), s.seq % 3, 1, 0, 0, 'Artículo', 'Av. Principal', '022000000', 'Quito', 'Pichincha', s.seq % 10 <> 0
  FROM volumen_inquilinos t JOIN seq_1_to_10000000 s ON s.seq <= t.filas;
INSERT INTO Sucursales (id, emp, ciu, nom, dir, tel, est)
  SELECT t.id, CONCAT('Empresa ', 1 + s.seq % 100), CONCAT('Ciudad ', 1 + s.seq % 50), CONCAT('Sucursal ', s.seq), 'Calle 1', '022000000', s.seq % 10 <> 0
  FROM volumen_inquilinos t JOIN seq_1_to_10000000 s ON s.seq <= t.filas;
INSERT INTO SubProveedor (id, prov, cin, ruc, raz, dir, est)
  SELECT t.id, 1 + s.seq % 50, CONCAT('SP-', s.seq), LPAD(s.seq, 13, '0'), CONCAT('Subproveedor ', s.seq), 'Calle 2', s.seq % 10 <> 0
  FROM volumen_inquilinos t JOIN seq_1_to_10000000 s ON s.seq <= t.filas;
INSERT INTO mCliente (id, nom, ciu, cat, tip, zon, lug)
  SELECT t.id, CONCAT('Cliente ', s.seq), CONCAT('Ciudad ', 1 + s.seq % 50), 1001 + s.seq % 20, 1001 + s.seq % 20, 1001 + s.seq % 20, CONCAT('Lugar ', 400 + s.seq % 400)
  FROM volumen_inquilinos t JOIN seq_1_to_10000000 s ON s.seq <= t.filas;
INSERT INTO mvendedor (id, nom, depa, car)
  SELECT t.id, CONCAT('Vendedor ', s.seq), CONCAT('Departamento ', 1 + s.seq % 50), t.base + 1 + s.seq % 20 FROM volumen_inquilinos t JOIN seq_1_to_10000000 s ON s.seq <= t.filas;
INSERT INTO mArticulo (id, nom, med)
  SELECT t.id, CONCAT('Artículo ', s.seq), CONCAT('m', 1 + s.seq % 50) FROM volumen_inquilinos t JOIN seq_1_to_10000000 s ON s.seq <= t.filas;
INSERT INTO sOrdenObjetos (id, obj)
  SELECT t.id, t.base + 1 + s.seq % 50 FROM volumen_inquilinos t JOIN seq_1_to_10000000 s ON s.seq <= t.filas;
INSERT INTO disenfacturacab (id, nom, doc)
  SELECT t.id, CONCAT('Modelo ', s.seq), s.seq % 6 FROM volumen_inquilinos t JOIN seq_1_to_10000000 s ON s.seq <= t.filas;
INSERT INTO tCabPagoCli (id, fec, frm, cap, inte)
  SELECT t.id, '2020-01-01' + INTERVAL s.seq % 2000 DAY, s.seq % 3, 100, 1 FROM volumen_inquilinos t JOIN seq_1_to_10000000 s ON s.seq <= t.filas;
INSERT INTO FechaIVAdif (id, fec, iva)
  SELECT t.id, MAKEDATE(YEAR(CURDATE()), 1) - INTERVAL s.seq DAY, 8 FROM volumen_inquilinos t JOIN seq_1_to_10000000 s ON s.seq <= t.filas;
INSERT INTO mProveedor (nom, ced)
  SELECT CONCAT('Proveedor ', seq), LPAD(seq, 13, '0') FROM seq_1_to_10000000 WHERE seq <= @filas;
INSERT INTO martexpira (art, bod, lot, can, fec, pro, est)
  SELECT 1000 + seq % GREATEST(@filas DIV 10, 1), 1 + seq % 3, CONCAT('L', seq), seq % 7, '2026-01-01' + INTERVAL seq % 1000 DAY, 1 + seq % 50, 1 + seq % 3
  FROM seq_1_to_10000000 WHERE seq <= @filas;
INSERT INTO tcabfac (estab, pem, num)
  SELECT '001', '002', seq FROM seq_1_to_10000000 WHERE seq <= @filas;
INSERT INTO tCuePagoCli (cab, fac, cap, inte)
  SELECT 1 + seq % GREATEST(@filas DIV 2, 1), seq, 50, 0.5 FROM seq_1_to_10000000 WHERE seq <= @filas;

DROP TABLE volumen_inquilinos;
ANALYZE TABLE lsCiudades, lsDepartam, lsUsos, lsComponente, lsContenidos, aMedidas, lsPaises, lscontratos,
  lsCuentas, mCatClie, Cargos, SRI_Documentos, SRI_Sustentos, mTipClie, lsBancos, mZonaClie, mZonaLugar,
  empresas, Sucursales, SubProveedor, mCliente, mvendedor, mArticulo, sOrdenObjetos, disenfacturacab,
  tCabPagoCli, FechaIVAdif, mProveedor, martexpira, tcabfac, tCuePagoCli;
