-- Nomencla: the tables and columns that the dialogs read and write.
-- The host application owns the database, this script builds an equivalent
-- database for the demo and for the tests.  Server settings assumed:
-- lower_case_table_names=1, utf8mb4.
--
-- Conventions:
--   id     tenant key (IdEmp), always written between apostrophes
--   cod    record code: AUTO_INCREMENT where the database gives it, numbered
--          per tenant by the dialog in mCatClie, mZonaClie and mTipClie,
--          which therefore carry a surrogate key pk and UNIQUE (id, cod)
--   est    1 active, 0 removed (martexpira: class of the lot)
-- Every column but the key has a default, so an insert may leave it out.

SET NAMES utf8mb4;

-- ---------------------------------------------------------------- lists

CREATE TABLE IF NOT EXISTS lsCiudades (
  pk  INT NOT NULL AUTO_INCREMENT,
  id  VARCHAR(20) NOT NULL DEFAULT '',
  ciu VARCHAR(25) NOT NULL DEFAULT '',
  PRIMARY KEY (pk),
  KEY ix_lsciudades_id_ciu (id, ciu)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_unicode_ci;

CREATE TABLE IF NOT EXISTS lsDepartam (
  pk   INT NOT NULL AUTO_INCREMENT,
  id   VARCHAR(20) NOT NULL DEFAULT '',
  depa VARCHAR(25) NOT NULL DEFAULT '',
  PRIMARY KEY (pk),
  KEY ix_lsdepartam_id_depa (id, depa)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_unicode_ci;

CREATE TABLE IF NOT EXISTS lsUsos (
  pk  INT NOT NULL AUTO_INCREMENT,
  id  VARCHAR(20) NOT NULL DEFAULT '',
  uso VARCHAR(25) NOT NULL DEFAULT '',
  PRIMARY KEY (pk),
  KEY ix_lsusos_id_uso (id, uso)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_unicode_ci;

CREATE TABLE IF NOT EXISTS lsComponente (
  pk  INT NOT NULL AUTO_INCREMENT,
  id  VARCHAR(20) NOT NULL DEFAULT '',
  com VARCHAR(25) NOT NULL DEFAULT '',
  PRIMARY KEY (pk),
  KEY ix_lscomponente_id_com (id, com)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_unicode_ci;

CREATE TABLE IF NOT EXISTS lsContenidos (
  cod INT NOT NULL AUTO_INCREMENT,
  id  VARCHAR(20) NOT NULL DEFAULT '',
  nom VARCHAR(25) NOT NULL DEFAULT '',
  PRIMARY KEY (cod),
  KEY ix_lscontenidos_id_nom (id, nom)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_unicode_ci;

CREATE TABLE IF NOT EXISTS aMedidas (
  pk  INT NOT NULL AUTO_INCREMENT,
  id  VARCHAR(20) NOT NULL DEFAULT '',
  med VARCHAR(20) NOT NULL DEFAULT '',
  abr VARCHAR(10) NOT NULL DEFAULT '',
  PRIMARY KEY (pk),
  KEY ix_amedidas_id_med_abr (id, med, abr),  -- the list, read from the index alone
  KEY ix_amedidas_id_abr (id, abr)           -- whether another unit has the abbreviation
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_unicode_ci;

CREATE TABLE IF NOT EXISTS lsPaises (
  cod INT NOT NULL AUTO_INCREMENT,
  id  VARCHAR(20) NOT NULL DEFAULT '',
  nom VARCHAR(60) NOT NULL DEFAULT '',
  PRIMARY KEY (cod),
  KEY ix_lspaises_id_nom (id, nom)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_unicode_ci;

CREATE TABLE IF NOT EXISTS lscontratos (
  cod INT NOT NULL AUTO_INCREMENT,
  id  VARCHAR(20) NOT NULL DEFAULT '',
  con VARCHAR(60) NOT NULL DEFAULT '',
  est INT NOT NULL DEFAULT 1,
  PRIMARY KEY (cod),
  KEY ix_lscontratos_id_est_con (id, est, con)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_unicode_ci;

CREATE TABLE IF NOT EXISTS lsCuentas (
  cod INT NOT NULL AUTO_INCREMENT,
  id  VARCHAR(20) NOT NULL DEFAULT '',
  cta VARCHAR(60) NOT NULL DEFAULT '',
  est INT NOT NULL DEFAULT 1,
  PRIMARY KEY (cod),
  KEY ix_lscuentas_id_est_cta (id, est, cta)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_unicode_ci;

-- ------------------------------------------------ coded lists and types

CREATE TABLE IF NOT EXISTS mCatClie (
  pk  INT NOT NULL AUTO_INCREMENT,
  id  VARCHAR(20) NOT NULL DEFAULT '',
  cod INT NOT NULL DEFAULT 0,
  cat VARCHAR(50) NOT NULL DEFAULT '',
  des VARCHAR(150) NOT NULL DEFAULT '',
  est INT NOT NULL DEFAULT 1,
  PRIMARY KEY (pk),
  UNIQUE KEY uq_mcatclie_id_cod (id, cod),
  KEY ix_mcatclie_cod (cod),
  KEY ix_mcatclie_lista (id, est, cat, des, cod)  -- the list, read from the index alone
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_unicode_ci;

CREATE TABLE IF NOT EXISTS Cargos (
  cod INT NOT NULL AUTO_INCREMENT,
  id  VARCHAR(20) NOT NULL DEFAULT '',
  car VARCHAR(50) NOT NULL DEFAULT '',
  des VARCHAR(150) NOT NULL DEFAULT '',
  est INT NOT NULL DEFAULT 1,
  PRIMARY KEY (cod),
  KEY ix_cargos_id_est_car_des (id, est, car, des)  -- the list, read from the index alone
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_unicode_ci;

CREATE TABLE IF NOT EXISTS SRI_Documentos (
  cod INT NOT NULL AUTO_INCREMENT,
  id  VARCHAR(20) NOT NULL DEFAULT '',
  cin VARCHAR(3) NOT NULL DEFAULT '',
  des VARCHAR(30) NOT NULL DEFAULT '',
  est INT NOT NULL DEFAULT 1,
  PRIMARY KEY (cod),
  KEY ix_sri_documentos_id_est_cin_des (id, est, cin, des)  -- the list, read from the index alone
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_unicode_ci;

CREATE TABLE IF NOT EXISTS SRI_Sustentos (
  cod INT NOT NULL AUTO_INCREMENT,
  id  VARCHAR(20) NOT NULL DEFAULT '',
  cin VARCHAR(3) NOT NULL DEFAULT '',
  des VARCHAR(150) NOT NULL DEFAULT '',
  est INT NOT NULL DEFAULT 1,
  PRIMARY KEY (cod),
  KEY ix_sri_sustentos_id_est_cin_des (id, est, cin, des)  -- the list, read from the index alone
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_unicode_ci;

CREATE TABLE IF NOT EXISTS mTipClie (
  pk    INT NOT NULL AUTO_INCREMENT,
  id    VARCHAR(20) NOT NULL DEFAULT '',
  cod   INT NOT NULL DEFAULT 0,
  tip   VARCHAR(50) NOT NULL DEFAULT '',
  des   VARCHAR(150) NOT NULL DEFAULT '',
  cre   DECIMAL(14,2) NOT NULL DEFAULT 0,
  pla   DECIMAL(14,2) NOT NULL DEFAULT 0,
  descu DECIMAL(14,2) NOT NULL DEFAULT 0,
  inte  DECIMAL(14,2) NOT NULL DEFAULT 0,
  est   INT NOT NULL DEFAULT 1,
  PRIMARY KEY (pk),
  UNIQUE KEY uq_mtipclie_id_cod (id, cod),
  KEY ix_mtipclie_cod (cod),
  KEY ix_mtipclie_lista (id, est, tip, des, cre, pla, descu, cod)  -- the list, read from the index alone
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_unicode_ci;

CREATE TABLE IF NOT EXISTS lsBancos (
  cod  INT NOT NULL AUTO_INCREMENT,
  id   VARCHAR(20) NOT NULL DEFAULT '',
  nom  VARCHAR(60) NOT NULL DEFAULT '',
  tar  INT NOT NULL DEFAULT 0,
  cor  DECIMAL(14,2) NOT NULL DEFAULT 0,
  dife DECIMAL(14,2) NOT NULL DEFAULT 0,
  est  INT NOT NULL DEFAULT 1,
  PRIMARY KEY (cod),
  KEY ix_lsbancos_lista (id, est, nom, tar, cor, dife)  -- the list, read from the index alone
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_unicode_ci;

CREATE TABLE IF NOT EXISTS mZonaClie (
  pk  INT NOT NULL AUTO_INCREMENT,
  id  VARCHAR(20) NOT NULL DEFAULT '',
  cod INT NOT NULL DEFAULT 0,
  zon VARCHAR(50) NOT NULL DEFAULT '',
  des VARCHAR(150) NOT NULL DEFAULT '',
  est INT NOT NULL DEFAULT 1,
  PRIMARY KEY (pk),
  UNIQUE KEY uq_mzonaclie_id_cod (id, cod),
  KEY ix_mzonaclie_cod (cod),
  KEY ix_mzonaclie_lista (id, est, zon, des, cod)  -- the list, read from the index alone
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_unicode_ci;

CREATE TABLE IF NOT EXISTS mZonaLugar (
  cod INT NOT NULL AUTO_INCREMENT,
  id  VARCHAR(20) NOT NULL DEFAULT '',
  zon INT NOT NULL DEFAULT 0,
  lug VARCHAR(50) NOT NULL DEFAULT '',
  ord DECIMAL(6,2) NOT NULL DEFAULT 0,
  est INT NOT NULL DEFAULT 1,
  PRIMARY KEY (cod),
  KEY ix_mzonalugar_id_zon_est_lug (id, zon, est, lug)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_unicode_ci;

-- ---------------------------------------------------- company structure

CREATE TABLE IF NOT EXISTS empresas (
  cod   INT NOT NULL AUTO_INCREMENT,
  id    VARCHAR(20) NOT NULL DEFAULT '',
  emp   VARCHAR(120) NOT NULL DEFAULT '',
  act   INT NOT NULL DEFAULT 0,
  suc   INT NOT NULL DEFAULT 0,
  selec INT NOT NULL DEFAULT 0,
  art   INT NOT NULL DEFAULT 0,
  nart  VARCHAR(25) NOT NULL DEFAULT '',
  dir   VARCHAR(120) NOT NULL DEFAULT '',
  tel   VARCHAR(12) NOT NULL DEFAULT '',
  ciu   VARCHAR(25) NOT NULL DEFAULT '',
  prov  VARCHAR(50) NOT NULL DEFAULT '',
  logo  MEDIUMBLOB NULL DEFAULT NULL,
  est   INT NOT NULL DEFAULT 1,
  PRIMARY KEY (cod),
  -- the list (est<>0) in name order with no sort, read from the index alone,
  -- also the combo of active companies and the check for a repeated name
  KEY ix_empresas_lista (id, emp, est, act, art, selec, suc, dir, tel, ciu, prov, nart),
  KEY ix_empresas_est_emp (est, emp)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_unicode_ci;

CREATE TABLE IF NOT EXISTS Sucursales (
  cod INT NOT NULL AUTO_INCREMENT,
  id  VARCHAR(20) NOT NULL DEFAULT '',
  emp VARCHAR(120) NOT NULL DEFAULT '',
  ciu VARCHAR(25) NOT NULL DEFAULT '',
  nom VARCHAR(60) NOT NULL DEFAULT '',
  dir VARCHAR(100) NOT NULL DEFAULT '',
  tel VARCHAR(10) NOT NULL DEFAULT '',
  est INT NOT NULL DEFAULT 1,
  PRIMARY KEY (cod),
  KEY ix_sucursales_id_emp_est (id, emp, est),  -- the company's branches: renamed with it, any active
  KEY ix_sucursales_est_emp (est, emp),
  KEY ix_sucursales_lista (id, ciu, nom, est, emp, dir, tel)  -- the list (est<>0) in order, from the index alone
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_unicode_ci;

CREATE TABLE IF NOT EXISTS SubProveedor (
  cod  INT NOT NULL AUTO_INCREMENT,
  id   VARCHAR(20) NOT NULL DEFAULT '',
  prov INT NOT NULL DEFAULT 0,
  cin  VARCHAR(13) NOT NULL DEFAULT '',
  ruc  VARCHAR(13) NOT NULL DEFAULT '',
  raz  VARCHAR(100) NOT NULL DEFAULT '',
  dir  VARCHAR(100) NOT NULL DEFAULT '',
  est  INT NOT NULL DEFAULT 1,
  PRIMARY KEY (cod),
  KEY ix_subproveedor_lista (id, cin, est, ruc, raz, dir),  -- the list (est<>0) in order, from the index alone
  KEY ix_subproveedor_prov (prov)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_unicode_ci;

-- ------------------------------------ host tables consulted by the dialogs
-- nom in mCliente, mvendedor and mArticulo is the host's own column: the
-- dialogs never name it, the demo data uses it to look like real records.

CREATE TABLE IF NOT EXISTS mCliente (
  cod INT NOT NULL AUTO_INCREMENT,
  id  VARCHAR(20) NOT NULL DEFAULT '',
  nom VARCHAR(100) NOT NULL DEFAULT '',
  ciu VARCHAR(25) NOT NULL DEFAULT '',
  cat INT NOT NULL DEFAULT 0,
  tip INT NOT NULL DEFAULT 0,
  zon INT NOT NULL DEFAULT 0,
  lug VARCHAR(50) NOT NULL DEFAULT '',
  PRIMARY KEY (cod),
  KEY ix_mcliente_id_ciu (id, ciu),
  KEY ix_mcliente_id_cat (id, cat),  -- whether the category is in use in this tenant
  KEY ix_mcliente_tip_id (tip, id),
  KEY ix_mcliente_id_zon (id, zon),  -- whether the zone is in use in this tenant
  -- a place renamed: its customers found (and locked) through this one index
  -- alone, and whether the place is in use
  KEY ix_mcliente_id_lug_zon (id, lug, zon)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_unicode_ci;

CREATE TABLE IF NOT EXISTS mvendedor (
  cod  INT NOT NULL AUTO_INCREMENT,
  id   VARCHAR(20) NOT NULL DEFAULT '',
  nom  VARCHAR(100) NOT NULL DEFAULT '',
  depa VARCHAR(25) NOT NULL DEFAULT '',
  car  INT NOT NULL DEFAULT 0,
  PRIMARY KEY (cod),
  KEY ix_mvendedor_id_depa (id, depa),
  KEY ix_mvendedor_id_car (id, car)  -- whether the position is in use in this tenant
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_unicode_ci;

CREATE TABLE IF NOT EXISTS mArticulo (
  cod INT NOT NULL AUTO_INCREMENT,
  id  VARCHAR(20) NOT NULL DEFAULT '',
  nom VARCHAR(100) NOT NULL DEFAULT '',
  med VARCHAR(20) NOT NULL DEFAULT '',
  PRIMARY KEY (cod),
  KEY ix_marticulo_id_med (id, med)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_unicode_ci;

CREATE TABLE IF NOT EXISTS sOrdenObjetos (
  cod INT NOT NULL AUTO_INCREMENT,
  id  VARCHAR(20) NOT NULL DEFAULT '',
  obj INT NOT NULL DEFAULT 0,
  PRIMARY KEY (cod),
  KEY ix_sordenobjetos_id_obj (id, obj)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_unicode_ci;

CREATE TABLE IF NOT EXISTS mProveedor (
  cod INT NOT NULL AUTO_INCREMENT,
  nom VARCHAR(100) NOT NULL DEFAULT '',
  ced VARCHAR(13) NOT NULL DEFAULT '',
  PRIMARY KEY (cod)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_unicode_ci;

-- ------------------------------------------------- documents and stock

CREATE TABLE IF NOT EXISTS martexpira (
  cod INT NOT NULL AUTO_INCREMENT,
  art INT NOT NULL DEFAULT 0,
  bod INT NOT NULL DEFAULT 0,
  lot VARCHAR(25) NOT NULL DEFAULT '',
  can DECIMAL(14,2) NOT NULL DEFAULT 0,
  fec DATE NULL DEFAULT NULL,
  pro INT NULL DEFAULT NULL,
  est INT NOT NULL DEFAULT 1,
  PRIMARY KEY (cod),
  KEY ix_martexpira_art_bod_lot (art, bod, lot),  -- an article's lots in one store, in lot order
  KEY ix_martexpira_art_lot (art, lot)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_unicode_ci;

CREATE TABLE IF NOT EXISTS disenfacturacab (
  cod INT NOT NULL AUTO_INCREMENT,
  id  VARCHAR(20) NOT NULL DEFAULT '',
  nom VARCHAR(60) NOT NULL DEFAULT '',
  doc INT NOT NULL DEFAULT 0,
  PRIMARY KEY (cod),
  KEY ix_disenfacturacab_id_doc_nom (id, doc, nom)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_unicode_ci;

CREATE TABLE IF NOT EXISTS tCabPagoCli (
  cod  INT NOT NULL AUTO_INCREMENT,
  id   VARCHAR(20) NOT NULL DEFAULT '',
  fec  DATE NULL DEFAULT NULL,
  frm  INT NOT NULL DEFAULT 0,
  cap  DECIMAL(14,2) NOT NULL DEFAULT 0,
  inte DECIMAL(14,2) NOT NULL DEFAULT 0,
  PRIMARY KEY (cod),
  KEY ix_tcabpagocli_id_cod (id, cod)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_unicode_ci;

CREATE TABLE IF NOT EXISTS tCuePagoCli (
  pk   INT NOT NULL AUTO_INCREMENT,
  cab  INT NOT NULL DEFAULT 0,
  fac  INT NOT NULL DEFAULT 0,
  cap  DECIMAL(14,2) NOT NULL DEFAULT 0,
  inte DECIMAL(14,2) NOT NULL DEFAULT 0,
  PRIMARY KEY (pk),
  KEY ix_tcuepagocli_cab (cab),
  KEY ix_tcuepagocli_fac (fac)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_unicode_ci;

CREATE TABLE IF NOT EXISTS tcabfac (
  cod   INT NOT NULL AUTO_INCREMENT,
  estab VARCHAR(3) NOT NULL DEFAULT '',
  pem   VARCHAR(3) NOT NULL DEFAULT '',
  num   INT NOT NULL DEFAULT 0,
  PRIMARY KEY (cod)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_unicode_ci;

CREATE TABLE IF NOT EXISTS FechaIVAdif (
  pk  INT NOT NULL AUTO_INCREMENT,
  id  VARCHAR(20) NOT NULL DEFAULT '',
  fec DATE NULL DEFAULT NULL,
  iva INT NOT NULL DEFAULT 0,
  PRIMARY KEY (pk),
  KEY ix_fechaivadif_id_fec (id, fec)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_unicode_ci;
