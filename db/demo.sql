-- Nomencla: demonstration data for two tenants, '1' and '2'.
-- Load after schema.sql into an empty database.  Dates that must stay
-- "recent" or "this year" are computed from CURDATE() at load time.

SET NAMES utf8mb4;

-- ---------------------------------------------------------------- cities

INSERT INTO lsCiudades (id, ciu) VALUES
('1','Quito'),('1','Guayaquil'),('1','Cuenca'),('1','Ambato'),('1','Loja'),
('1','Machala'),('1','Manta'),('1','Portoviejo'),('1','Riobamba'),('1','Ibarra'),
('1','Esmeraldas'),('1','Latacunga'),('1','Santo Domingo'),('1','Babahoyo'),
('1','Tulcán'),('1','Zamora'),('1','Puyo'),('1','Tena'),('1','Macas'),
('1','Nueva Loja'),('1','Sangolquí'),('1','Quevedo'),
('2','Guayaquil'),('2','Quito'),('2','Manta'),('2','Machala'),('2','Milagro'),
('2','Salinas'),('2','Portoviejo'),('2','Cuenca');

-- ----------------------------------------------------------- departments

INSERT INTO lsDepartam (id, depa) VALUES
('1','Gerencia'),('1','Ventas'),('1','Contabilidad'),('1','Bodega'),
('1','Cobranzas'),('1','Compras'),('1','Sistemas'),('1','Talento Humano'),
('1','Logística'),
('2','Administración'),('2','Ventas'),('2','Bodega'),('2','Recepción');

-- ------------------------------------------------------ uses, components

INSERT INTO lsUsos (id, uso) VALUES
('1','Uso doméstico'),('1','Uso industrial'),('1','Uso veterinario'),
('1','Uso agrícola'),('1','Uso hospitalario'),('1','Uso profesional'),
('2','Uso doméstico'),('2','Uso comercial');

INSERT INTO lsComponente (id, com) VALUES
('1','Pantalla'),('1','Batería'),('1','Teclado'),('1','Tarjeta madre'),
('1','Fuente de poder'),('1','Disco duro'),('1','Memoria RAM'),('1','Cargador'),
('2','Motor'),('2','Compresor'),('2','Termostato');

-- ------------------------------------------- objects received with orders

INSERT INTO lsContenidos (cod, id, nom) VALUES
(1,'1','Cargador'),(2,'1','Cable USB'),(3,'1','Estuche'),(4,'1','Tarjeta SIM'),
(5,'1','Memoria micro SD'),(6,'1','Manual de usuario'),(7,'1','Control remoto'),
(8,'1','Batería extra'),
(9,'2','Cargador'),(10,'2','Control remoto'),(11,'2','Base de pared');

INSERT INTO sOrdenObjetos (id, obj) VALUES
('1',1),('1',1),('1',2),('1',3),('1',1),('1',7),('1',4),
('2',9),('2',10),('2',9);

-- --------------------------------------------------------------- countries

INSERT INTO lsPaises (id, nom) VALUES
('1','Ecuador'),('1','Colombia'),('1','Perú'),('1','China'),
('1','Estados Unidos'),('1','México'),('1','India'),('1','Alemania'),
('1','España'),('1','Brasil'),('1','Argentina'),('1','Chile'),
('2','Ecuador'),('2','Colombia'),('2','India'),('2','Panamá');

-- ------------------------------------------------------- units of measure

INSERT INTO aMedidas (id, med, abr) VALUES
('1','Unidad','u'),('1','Caja','cja'),('1','Frasco','fco'),('1','Blíster','bls'),
('1','Tableta','tab'),('1','Cápsula','cap'),('1','Sobre','sob'),
('1','Ampolla','amp'),('1','Kilogramo','kg'),('1','Gramo','g'),
('1','Litro','l'),('1','Mililitro','ml'),('1','Galón','gal'),('1','Metro','m'),
('1','Docena','doc'),('1','Paquete','paq'),('1','Tubo','tub'),
('2','Unidad','u'),('2','Caja','cja'),('2','Quintal','qq'),('2','Litro','l'),
('2','Funda','fda');

-- ------------------------------------------------------ contracts, accounts

INSERT INTO lscontratos (id, con, est) VALUES
('1','CT-2024-001 Mantenimiento de equipos',1),
('1','CT-2024-007 Arriendo local Av. 10 de Agosto',1),
('1','CT-2025-002 Transporte de mercadería Quito-Guayaquil',1),
('1','CT-2025-011 Servicio de seguridad',1),
('1','CT-2023-015 Publicidad radial',0),
('2','CC-2025-001 Arriendo bodega Vía a Daule',1),
('2','CC-2025-004 Suministro de agua purificada',1);

INSERT INTO lsCuentas (id, cta, est) VALUES
('1','1.1.01.01 Caja general',1),
('1','1.1.01.02 Caja chica',1),
('1','1.1.02.01 Banco Pichincha cta. cte. 2100456789',1),
('1','1.1.02.02 Produbanco cta. cte. 02005123456',1),
('1','1.1.03.01 Cuentas por cobrar clientes',1),
('1','2.1.01.01 Proveedores locales',1),
('1','2.1.03.01 IVA por pagar',1),
('1','5.2.01.05 Gastos de movilización',1),
('1','1.1.02.09 Banco Territorial (cerrado)',0),
('2','1.1.01.01 Caja',1),
('2','1.1.02.01 Banco de Guayaquil cta. cte. 0012345678',1),
('2','4.1.01.01 Ventas tarifa 15%',1);

-- -------------------------------------------------------- customer lists
-- mCatClie, mTipClie and mZonaClie are numbered per tenant: the codes of
-- tenant '1' and tenant '2' collide on purpose.

INSERT INTO mCatClie (id, cod, cat, des, est) VALUES
('1',1,'Mayorista','Compras por volumen, precio de distribuidor',1),
('1',2,'Minorista','Tiendas y locales de barrio',1),
('1',3,'Distribuidor','Distribuidores autorizados con zona asignada',1),
('1',4,'Consumidor final','Venta al público con factura a nombre propio',1),
('1',5,'Institucional','Entidades del sector público (ya no se usa)',0),
('1',6,'Farmacias','Farmacias independientes y cadenas',1),
('2',1,'Hoteles','Hoteles y hostales de la costa',1),
('2',2,'Restaurantes','Restaurantes y cafeterías',1),
('2',3,'Consumidor final','Venta directa al público',1);

INSERT INTO mTipClie (id, cod, tip, des, cre, pla, descu, inte, est) VALUES
('1',1,'Contado','Pago inmediato en efectivo o transferencia',0,0,0,0,1),
('1',2,'Crédito 30 días','Clientes con historial de pago regular',1500,30,2,0,1),
('1',3,'Crédito 60 días','Mayoristas con garantía bancaria',5000,60,3.5,0,1),
('1',4,'Preferencial','Clientes con más de cinco años de relación',10000,90,5,0,1),
('1',5,'Crédito especial','Convenio anterior, sin uso',2000,45,1,0,0),
('2',1,'Contado','Pago al momento de la entrega',0,0,0,0,1),
('2',2,'Crédito corporativo','Cadenas hoteleras con contrato',8000,45,4,0,1);

INSERT INTO mZonaClie (id, cod, zon, des, est) VALUES
('1',1,'Quito Norte','Desde La Y hasta Carcelén',1),
('1',2,'Quito Centro','Centro histórico y alrededores',1),
('1',3,'Quito Sur','Desde El Recreo hasta Quitumbe',1),
('1',4,'Valles','Cumbayá, Tumbaco, Los Chillos',1),
('1',5,'Provincias','Clientes fuera de Pichincha',1),
('1',6,'Zona antigua','Reemplazada por Quito Norte',0),
('2',1,'Costa','Guayas, Manabí, El Oro, Santa Elena',1),
('2',2,'Sierra','Pichincha, Azuay, Tungurahua',1),
('2',3,'Oriente','Pastaza, Napo, Sucumbíos',1);

INSERT INTO mZonaLugar (id, zon, lug, ord, est) VALUES
('1',1,'Carcelén',1,1),('1',1,'Cotocollao',2,1),('1',1,'El Condado',3,1),
('1',1,'La Kennedy',4,1),('1',1,'El Inca',5,1),
('1',2,'San Blas',1,1),('1',2,'La Marín',2,1),('1',2,'La Tola',3,1),
('1',2,'San Marcos',4,1),
('1',3,'Chillogallo',1,1),('1',3,'Quitumbe',2,1),('1',3,'Solanda',3,1),
('1',3,'La Magdalena',4,1),
('1',4,'Cumbayá',1,1),('1',4,'Tumbaco',2,1),('1',4,'Sangolquí',3,1),
('1',4,'Conocoto',4,1),('1',4,'Puembo',5,0),
('1',5,'Guayaquil',1,1),('1',5,'Cuenca',2,1),('1',5,'Ambato',3,1),
('2',1,'Guayaquil',1,1),('2',1,'Manta',2,1),('2',1,'Machala',3,1),
('2',1,'Salinas',4,1),
('2',2,'Quito',1,1),('2',2,'Cuenca',2,1),('2',2,'Ambato',3,1),
('2',3,'Puyo',1,1),('2',3,'Tena',2,1),('2',3,'Nueva Loja',3,1);

-- ------------------------------------------------------- SRI catalogues

INSERT INTO SRI_Documentos (id, cin, des, est) VALUES
('1','01','Factura',1),
('1','02','Nota o boleta de venta',1),
('1','03','Liq. compra bienes y servicios',1),
('1','04','Nota de crédito',1),
('1','05','Nota de débito',1),
('1','06','Guía de remisión',1),
('1','07','Comprobante de retención',1),
('1','08','Boletos de espectáculos',1),
('1','09','Tiquetes máq. registradoras',1),
('1','11','Pasajes de aviación',1),
('1','12','Doc. instituciones financieras',1),
('1','15','Comprobante venta del exterior',1),
('1','19','Comprobante pago de cuotas',1),
('1','20','Doc. servicios del Estado',1),
('1','21','Carta de porte aéreo',1),
('1','41','Comprobante por reembolso',1),
('1','10','Documento en desuso',0),
('2','01','Factura',1),
('2','03','Liquidación de compra',1),
('2','04','Nota de crédito',1),
('2','07','Comprobante de retención',1);

INSERT INTO SRI_Sustentos (id, cin, des, est) VALUES
('1','00','Casos especiales cuyo sustento no aplica en las opciones anteriores',1),
('1','01','Crédito Tributario para declaración de IVA (servicios y bienes distintos de inventarios y activos fijos)',1),
('1','02','Costo o Gasto para declaración de IR (servicios y bienes distintos de inventarios y activos fijos)',1),
('1','03','Activo Fijo - Crédito Tributario para declaración de IVA',1),
('1','04','Activo Fijo - Costo o Gasto para declaración de IR',1),
('1','05','Liquidación Gastos de Viaje, hospedaje y alimentación Gastos IR (a nombre de empleados y no de la empresa)',1),
('1','06','Inventario - Crédito Tributario para declaración de IVA',1),
('1','07','Inventario - Costo o Gasto para declaración de IR',1),
('1','08','Valor pagado para solicitar Reembolso de Gasto (intermediario)',1),
('1','09','Reembolso por Siniestros',1),
('1','10','Distribución de Dividendos, Beneficios o Utilidades',1),
('1','11','Convenios de débito o recaudación para IFIs',1),
('1','12','Impuestos y retenciones presuntivos',1),
('1','13','Valores reconocidos por entidades del sector público a favor de sujetos pasivos',1),
('2','01','Crédito Tributario para declaración de IVA (servicios y bienes distintos de inventarios y activos fijos)',1),
('2','02','Costo o Gasto para declaración de IR (servicios y bienes distintos de inventarios y activos fijos)',1),
('2','06','Inventario - Crédito Tributario para declaración de IVA',1);

-- ---------------------------------------------------------- banks

INSERT INTO lsBancos (id, nom, tar, cor, dife, est) VALUES
('1','Banco Pichincha',1,4.02,7.50,1),
('1','Banco de Guayaquil',1,4.02,7.00,1),
('1','Produbanco',1,3.80,6.90,1),
('1','Banco del Pacífico',1,4.00,7.25,1),
('1','Banco Bolivariano',1,3.95,7.10,1),
('1','Banco Internacional',1,3.90,6.80,1),
('1','Banco del Austro',1,4.10,7.40,1),
('1','Banco Diners Club',1,4.50,8.00,1),
('1','BanEcuador',0,0,0,1),
('1','Cooperativa JEP',0,0,0,1),
('1','Cooperativa Jardín Azuayo',0,0,0,1),
('1','Cooperativa Policía Nacional',0,0,0,1),
('1','Cooperativa 29 de Octubre',0,0,0,1),
('1','Banco Territorial',0,0,0,0),
('2','Banco de Guayaquil',1,3.75,6.50,1),
('2','Banco Bolivariano',1,3.90,6.90,1),
('2','Banco del Pacífico',1,4.00,7.00,1),
('2','Cooperativa JEP',0,0,0,1);

-- ------------------------------------------------------------ positions

INSERT INTO Cargos (cod, id, car, des, est) VALUES
(1,'1','Gerente general','Representante legal de la empresa',1),
(2,'1','Vendedor','Atención de clientes en ruta y en local',1),
(3,'1','Contador','Contabilidad y declaraciones al SRI',1),
(4,'1','Bodeguero','Recepción y despacho de mercadería',1),
(5,'1','Cajero','Cobro en caja y cierre diario',1),
(6,'1','Cobrador','Recuperación de cartera',1),
(7,'1','Auxiliar contable','Apoyo en registros contables',1),
(8,'1','Chofer','Entrega de pedidos',1),
(9,'1','Mensajero','Cargo reemplazado por Chofer',0),
(10,'2','Administrador','Administración del local',1),
(11,'2','Vendedor','Ventas en mostrador',1),
(12,'2','Recepcionista','Atención de huéspedes',1);

-- ------------------------------------------------------------ companies
-- act: 0 Comercio General, 1 Farmacia, 2 Gasolinera, 3 Hotel, 4 Catering,
-- 5 Venta con tickets, 6 Servicios profesionales, 7 Talleres y
-- reparaciones, 8 Transporte público.

INSERT INTO empresas (cod, id, emp, act, suc, selec, art, nart, dir, tel, ciu, prov, est) VALUES
(1,'1','Distribuidora Andina del Ecuador S.A.',0,3,1,0,'','Av. 10 de Agosto N35-120 y Juan Pablo Sanz','022456789','Quito','Pichincha',1),
(2,'1','Farmacia Santa Lucía',1,3,1,0,'','Calle Larga 7-45 y Presidente Borrero','072845120','Cuenca','Azuay',1),
(3,'1','Taller Mecánico Hermanos Paredes',7,1,0,1,'JNDA-2019-04512','Av. Bolivariana y Los Guaytambos','032412880','Ambato','Tungurahua',1),
(4,'1','Transportes Ruta Sur Cía. Ltda.',8,0,0,0,'','Av. Universitaria y Mercadillo','072571234','Loja','Loja',0),
(5,'2','Comercial Costa Azul S.A.',0,2,1,0,'','Av. 9 de Octubre 1215 y Av. Quito','042567890','Guayaquil','Guayas',1),
(6,'2','Hotel Mirador del Pacífico',3,1,0,0,'','Malecón Jaime Chávez y Calle 20','052623456','Manta','Manabí',1);

-- The logo of the first company: a 64x64 PNG.
UPDATE empresas SET logo=X'89504E470D0A1A0A0000000D49484452000000400000004008030000009DB781EC0000000F504C54450000001F4E8CFFFFFF2E8B5778AADC98922F510000000574524E5300FFFFFFFF1CD02652000000E64944415478DACDD7CB0EC2400C43D178F0FF7F332CFAA2249D24AE50BDE61E890E481DB3270FDBA4B88320989827094CA6F61301A9A97D2C009A006802A00980289C3F308A00AA0066FDA8094E3F2A5FC2ED2B82DFCF84B0E7BEA410F613C107C840182170D5EF82F7481C800C04F7A1FE026420F8C792078283CDF51F213C9613C0CC2E00B22C7C01645D3802644338006447D801B2256C00D91356806C0A0B407685E5A7C8AEB0FC17C8AE200294019A28D87300537B1DB05763762B606A5F17EC76C0D4BE26F8AFAA6A9F17E2D775B54F11B32B8BDA4F88E4BD4DCC03A3717B95E2FFED0DA2621C5FCDF6B4980000000049454E44AE426082' WHERE cod=1;

INSERT INTO Sucursales (cod, id, emp, ciu, nom, dir, tel, est) VALUES
(1,'1','Distribuidora Andina del Ecuador S.A.','Quito','Matriz','Av. 10 de Agosto N35-120 y Juan Pablo Sanz','022456789',1),
(2,'1','Distribuidora Andina del Ecuador S.A.','Guayaquil','Sucursal Guayaquil','Av. Juan Tanca Marengo km 2','042698741',1),
(3,'1','Distribuidora Andina del Ecuador S.A.','Cuenca','Sucursal Cuenca','Av. España y Sevilla','072862233',1),
(4,'1','Farmacia Santa Lucía','Cuenca','Matriz Centro','Calle Larga 7-45 y Presidente Borrero','072845120',1),
(5,'1','Farmacia Santa Lucía','Cuenca','El Ejido','Av. Solano y 12 de Abril','072881990',1),
(6,'1','Farmacia Santa Lucía','Loja','Sucursal Loja','Bolívar y Rocafuerte','072570011',2),
(7,'1','Taller Mecánico Hermanos Paredes','Ambato','Taller principal','Av. Bolivariana y Los Guaytambos','032412880',1),
(8,'1','Distribuidora Andina del Ecuador S.A.','Ibarra','Punto Ibarra','Av. Mariano Acosta 21-40','062601122',0),
(9,'2','Comercial Costa Azul S.A.','Guayaquil','Matriz','Av. 9 de Octubre 1215 y Av. Quito','042567890',1),
(10,'2','Comercial Costa Azul S.A.','Machala','Sucursal Machala','Av. 25 de Junio y Guayas','072930456',1),
(11,'2','Hotel Mirador del Pacífico','Manta','Recepción principal','Malecón Jaime Chávez y Calle 20','052623456',1);

-- ----------------------------------------------- suppliers, sub-suppliers

INSERT INTO mProveedor (cod, nom, ced) VALUES
(1,'Distribuidora Farmacéutica del Pacífico S.A.','0992345678001'),
(2,'Laboratorios Andinos Cía. Ltda.','1791234567001'),
(3,'Importadora Tecnológica Quito S.A.','1790876543001'),
(4,'Agroindustrial La Esperanza','1890123456001'),
(5,'Pesquera Costa Azul del Ecuador','1391234567001');

INSERT INTO SubProveedor (id, prov, cin, ruc, raz, dir, est) VALUES
('1',1,'SP-001','0991122334001','Droguería El Salvador','Av. Quito 1020 y Padre Solano, Guayaquil',1),
('1',1,'SP-002','0912345678001','María Fernanda Zambrano Vera','Cdla. Kennedy Norte Mz. 12, Guayaquil',1),
('1',1,'SP-003','0703456789001','Distribuciones El Oro','Av. Las Palmeras y Sucre, Machala',1),
('1',2,'LA-010','1712345678001','Juan Carlos Andrade Pérez','Av. Amazonas N24-03, Quito',1),
('1',2,'LA-011','1790998877001','Envases Plásticos del Norte','Panamericana Norte km 12, Quito',0),
('1',3,'IT-100','1791556677001','Servicio Técnico Andino','Av. de la Prensa N45-12, Quito',2),
('2',5,'SP-001','1309876543001','Comercializadora Manabita','Av. 4 de Noviembre, Manta',1);

-- ------------------------------------------- customers and employees

INSERT INTO mCliente (id, nom, ciu, cat, tip, zon, lug) VALUES
('1','Ferretería El Constructor','Quito',1,2,1,'Carcelén'),
('1','Tienda Don Lucho','Quito',2,1,1,'Cotocollao'),
('1','Minimarket La Y','Quito',2,1,1,'El Inca'),
('1','Comisariato San Blas','Quito',1,3,2,'San Blas'),
('1','Farmacia Cruz de Solanda','Quito',6,2,3,'Solanda'),
('1','Distribuidora Quitumbe','Quito',3,4,3,'Quitumbe'),
('1','Supermercado Cumbayá','Quito',1,3,4,'Cumbayá'),
('1','Bazar Sangolquí','Sangolquí',2,1,4,'Sangolquí'),
('1','Comercial Guayas Norte','Guayaquil',3,4,5,'Guayaquil'),
('1','Pedro Pablo Sarmiento','Cuenca',4,1,5,'Cuenca'),
('1','Farmacias del Tungurahua','Ambato',6,3,5,'Ambato'),
('1','Ana Lucía Cevallos','Quito',4,1,2,'La Tola'),
('2','Hostal Brisas de Salinas','Salinas',1,2,1,'Salinas'),
('2','Restaurante El Manaba','Manta',2,1,1,'Manta'),
('2','Hotel Oro Verde Machala','Machala',1,2,1,'Machala'),
('2','Cafetería La Floresta','Quito',2,1,2,'Quito'),
('2','Carlos Alberto Mendoza','Guayaquil',3,1,1,'Guayaquil');

INSERT INTO mvendedor (id, nom, depa, car) VALUES
('1','Jorge Enrique Salazar','Gerencia',1),
('1','Diana Carolina Vásconez','Ventas',2),
('1','Luis Fernando Toapanta','Ventas',2),
('1','Mónica Patricia Herrera','Contabilidad',3),
('1','Segundo Chicaiza','Bodega',4),
('1','Gabriela Andrade','Cobranzas',6),
('1','Verónica Guamán','Contabilidad',7),
('1','Wilson Quishpe','Logística',8),
('2','Roberto Alvarado','Administración',10),
('2','Karla Villacís','Ventas',11),
('2','Paola Intriago','Recepción',12);

-- ------------------------------------------------------------ articles

INSERT INTO mArticulo (cod, id, nom, med) VALUES
(1,'1','Paracetamol 500 mg x 100 tabletas','cja'),
(2,'1','Amoxicilina 500 mg x 20 cápsulas','cja'),
(3,'1','Ibuprofeno 400 mg x 10 tabletas','bls'),
(4,'1','Alcohol antiséptico 70% 1 litro','fco'),
(5,'1','Suero oral sabor naranja','sob'),
(6,'1','Vitamina C 1 g efervescente','tub'),
(7,'1','Guantes de nitrilo talla M','cja'),
(8,'1','Cable USB tipo C','u'),
(9,'2','Agua purificada botellón 20 l','u'),
(10,'2','Arroz flor 1 quintal','qq');

-- Lots.  est: 0 expired, 1 active, 2 quarantine, 3 under review.
-- bod: warehouse 1 (Quito) and 2 (Guayaquil).  pro NULL or 0: no supplier.
INSERT INTO martexpira (art, bod, lot, can, fec, pro, est) VALUES
(1,1,'PCT-2301',0,'2018-11-30',1,0),
(1,1,'PCT-2402',15,DATE_SUB(CURDATE(), INTERVAL 2 MONTH),1,0),
(1,1,'PCT-2505',240,DATE_ADD(CURDATE(), INTERVAL 8 MONTH),1,1),
(1,1,'PCT-2506',120,DATE_ADD(CURDATE(), INTERVAL 14 MONTH),2,1),
(1,2,'PCT-2505',60,DATE_ADD(CURDATE(), INTERVAL 8 MONTH),1,1),
(1,2,'PCT-2510',0,DATE_ADD(CURDATE(), INTERVAL 20 MONTH),1,1),
(1,2,'PCT-2511',36,DATE_ADD(CURDATE(), INTERVAL 18 MONTH),NULL,2),
(1,1,'PCT-2512',48,DATE_ADD(CURDATE(), INTERVAL 24 MONTH),0,3),
(2,1,'AMX-A118',30,DATE_ADD(CURDATE(), INTERVAL 5 MONTH),2,1),
(2,1,'AMX-A119',12,DATE_ADD(CURDATE(), INTERVAL 1 MONTH),2,3),
(2,2,'AMX-A120',80,DATE_ADD(CURDATE(), INTERVAL 11 MONTH),2,1),
(2,2,'AMX-A099',5,'2019-01-15',2,0),
(2,2,'AMX-A121',40,DATE_ADD(CURDATE(), INTERVAL 12 MONTH),2,2),
(3,1,'IBU-7781',100,DATE_ADD(CURDATE(), INTERVAL 9 MONTH),NULL,1),
(3,1,'IBU-7782',0,DATE_ADD(CURDATE(), INTERVAL 10 MONTH),NULL,1),
(3,2,'IBU-7790',25,DATE_SUB(CURDATE(), INTERVAL 10 DAY),1,0),
(4,1,'ALC-0045',18,DATE_ADD(CURDATE(), INTERVAL 30 MONTH),4,1),
(4,2,'ALC-0046',6,DATE_ADD(CURDATE(), INTERVAL 30 MONTH),0,3),
(5,1,'SRO-1101',200,DATE_ADD(CURDATE(), INTERVAL 6 MONTH),1,1),
(5,1,'SRO-1102',50,DATE_ADD(CURDATE(), INTERVAL 6 MONTH),1,2),
(6,1,'--',24,DATE_ADD(CURDATE(), INTERVAL 4 MONTH),NULL,1),
(9,1,'AGP-001',300,DATE_ADD(CURDATE(), INTERVAL 3 MONTH),5,1),
(10,1,'ARZ-2024',40,DATE_ADD(CURDATE(), INTERVAL 7 MONTH),4,1);

-- ---------------------------------------------------------- print models
-- doc: 0 invoice, 3 delivery to invoice, 4 delivery note, 5 withholding,
-- 6 credit note, 8 receipt, 9 proforma.  No model of kind 10.

INSERT INTO disenfacturacab (id, nom, doc) VALUES
('1','Factura A4 estándar',0),
('1','Factura media página',0),
('1','Factura matricial 80 columnas',0),
('1','Entrega por facturar',3),
('1','Nota de entrega A5',4),
('1','Comprobante de retención',5),
('1','Nota de crédito A4',6),
('1','Recibo de cobro',8),
('1','Recibo de caja chica',8),
('1','Proforma con logotipo',9),
('1','Proforma sencilla',9),
('2','Factura Costa Azul',0),
('2','Proforma Costa Azul',9);

-- ------------------------------------------- invoices and their payments

INSERT INTO tcabfac (cod, estab, pem, num) VALUES
(1,'001','002',1201),(2,'001','002',1202),(3,'001','002',1215),
(4,'001','002',1230),(5,'001','002',1231),(6,'001','002',1244),
(7,'001','002',1260),(8,'002','001',455),(9,'001','002',1275),
(10,'001','001',3021);

-- frm: 0 cash, 2 cheque, 3 credit card, 4 electronic money, 5 credit note,
-- 6 deposit, 7 discount, 8 advance, 9 debit card, 12 post-dated cheque.
INSERT INTO tCabPagoCli (cod, id, fec, frm, cap, inte) VALUES
(1,'1','2025-03-14',0,358.40,0),
(2,'1','2025-04-02',2,1250.00,18.75),
(3,'1','2025-05-20',3,89.60,0),
(4,'1','2025-06-30',12,2400.00,36.00),
(5,'1','2025-07-15',6,512.30,4.10),
(6,'1','2025-08-01',1,75.00,0),
(7,'1','2025-08-05',0,40.00,0),
(8,'2','2025-05-11',6,980.00,0);

INSERT INTO tCuePagoCli (cab, fac, cap, inte) VALUES
(1,1,200.00,0),(1,2,158.40,0),
(2,3,750.00,11.25),(2,4,500.00,7.50),
(3,5,89.60,0),
(4,6,1000.00,15.00),(4,7,900.00,13.50),(4,9,500.00,7.50),
(5,8,512.30,4.10),
(6,2,75.00,0),
(8,10,980.00,0);

-- --------------------------------------- dates with a different VAT rate

INSERT INTO FechaIVAdif (id, fec, iva) VALUES
('1',STR_TO_DATE(CONCAT(YEAR(CURDATE()),'-01-01'),'%Y-%m-%d'),8),
('1',STR_TO_DATE(CONCAT(YEAR(CURDATE()),'-05-01'),'%Y-%m-%d'),8),
('1',STR_TO_DATE(CONCAT(YEAR(CURDATE()),'-05-24'),'%Y-%m-%d'),8),
('1',STR_TO_DATE(CONCAT(YEAR(CURDATE()),'-08-10'),'%Y-%m-%d'),8),
('1',STR_TO_DATE(CONCAT(YEAR(CURDATE()),'-10-09'),'%Y-%m-%d'),8),
('1',STR_TO_DATE(CONCAT(YEAR(CURDATE()),'-11-02'),'%Y-%m-%d'),8),
('1',STR_TO_DATE(CONCAT(YEAR(CURDATE()),'-11-03'),'%Y-%m-%d'),8),
('1',STR_TO_DATE(CONCAT(YEAR(CURDATE()),'-12-25'),'%Y-%m-%d'),8),
('1',STR_TO_DATE(CONCAT(YEAR(CURDATE()) - 1,'-12-25'),'%Y-%m-%d'),8),
('2',STR_TO_DATE(CONCAT(YEAR(CURDATE()),'-07-25'),'%Y-%m-%d'),8),
('2',STR_TO_DATE(CONCAT(YEAR(CURDATE()),'-10-09'),'%Y-%m-%d'),8);
