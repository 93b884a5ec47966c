-- Nomencla: the second store of the host, documents that were not saved.
-- SQLite.  tip 1: purchase documents (FacturasPendientes),
-- tip 0: sales documents (FacturasPendientesVentas).
CREATE TABLE IF NOT EXISTS BkUpfac (
  id     TEXT,
  cod    INTEGER,
  numdoc TEXT,
  tip    INTEGER
);
CREATE INDEX IF NOT EXISTS ix_bkupfac_id_tip ON BkUpfac (id, tip);
INSERT INTO BkUpfac (id, cod, numdoc, tip) VALUES
('1', 101, '001-001-000004512', 1),
('1', 101, '001-001-000004512', 1),
('1', 102, '002-001-000000871', 1),
('1', 103, '001-003-000012009', 1),
('1', 103, '001-003-000012010', 1),
('1', 104, NULL, 1),
('1', 201, '001-002-000001301', 0),
('1', 201, '001-002-000001301', 0),
('1', 202, '001-002-000001302', 0),
('1', 203, '001-002-000001305', 0),
('2', 101, '003-001-000000045', 1),
('2', 301, '001-001-000000220', 0),
('2', 302, '001-001-000000221', 0),
('', 900, '001-001-000000001', 0),
('', 901, '001-001-000000002', 1);
