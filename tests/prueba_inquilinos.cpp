// Two tenants whose codes and names collide in every table: each write of
// tenant '1', driven through every maintenance dialog, changes tenant '1' and
// leaves every row of tenant '2' exactly as it was.
#include "tests/prueba_estructura.h"

#include <nomencla/clsNomencla.h>

#include <QDateEdit>
#include <QFile>
#include <functional>

using namespace Qt::StringLiterals;
using namespace prueba;
using nomencla::Alfarje;

namespace {

const QString guardadoC = u"La información se ha guardado correctamente!"_s;
const QString guardadoE = u"La información se ha guardado con éxito!"_s;
const QString hecho = u"La operación se realizó correctamente!"_s;
const QString pregunta = u"Está seguro"_s; // the named lists say nothing after a removal
int operaciones = 0;

// The last box tells the operation was done.
void listo(Cajas& c, const QString& inicio)
{
    QVERIFY2(c.ultima().startsWith(inicio), qPrintable(c.ultima()));
    ++operaciones;
}

void elegir(QWidget* d, const QString& texto, int columna = 0)
{
    auto* gr = control<Alfarje>(d, u"GR"_s);
    dobleClic(gr, filaCon(gr, texto, columna));
}

void quitar(QWidget* d, Cajas& c, const QString& boton)
{
    c.responder(QMessageBox::Yes);
    pulsar(d, boton);
}

void poner(QWidget* d, const QString& nombre, const QString& texto)
{
    control<QWidget>(d, nombre)->setProperty("text", texto);
}

using Pasos = std::function<void(QWidget*, Cajas&)>;
using Abrir = std::function<bool(clsNomencla&, QSqlDatabase&)>;

Abrir metodo(bool (clsNomencla::*m)(const QString&, QSqlDatabase&))
{
    return [m](clsNomencla& n, QSqlDatabase& db) { return (n.*m)(u"1"_s, db); };
}

// Lists of names (units: with an abbreviation): add, remove the found one;
// they have no update.
Pasos simple(const QString& nuevo, const QString& quitado, const QString& abreviatura = {})
{
    return [=](QWidget* d, Cajas& c) {
        auto* t = control<QLineEdit>(d, u"Text1"_s);
        t->insert(nuevo);
        if (!abreviatura.isEmpty())
            control<QLineEdit>(d, u"Text2"_s)->insert(abreviatura);
        pulsar(d, u"Bt(0)"_s);
        listo(c, guardadoC);
        t->clear();
        t->insert(quitado);
        quitar(d, c, u"Bt(2)"_s);
        listo(c, hecho);
    };
}

// Records of several boxes Tx(i): add (empty texts left alone), pick by the
// grid's column and change the box `campo`, pick and remove.
Pasos registro(const QStringList& nuevo, const QString& elegido, int columna, int campo, const QString& cambio,
               const QString& quitado)
{
    return [=](QWidget* d, Cajas& c) {
        for (int i = 0; i < nuevo.size(); ++i)
            if (!nuevo[i].isEmpty())
                poner(d, u"Tx(%1)"_s.arg(i), nuevo[i]);
        pulsar(d, u"Bt(0)"_s);
        listo(c, guardadoE);
        elegir(d, elegido, columna);
        poner(d, u"Tx(%1)"_s.arg(campo), cambio);
        pulsar(d, u"Bt(0)"_s);
        listo(c, guardadoE);
        elegir(d, quitado, columna);
        quitar(d, c, u"Bt(1)"_s);
        listo(c, hecho);
    };
}

Pasos codificada(const QString& nuevo, const QString& elegido, int campo, const QString& cambio, const QString& quitado)
{
    return registro({nuevo}, elegido, 0, campo, cambio, quitado);
}

// Named lists: add, pick and rename, pick and remove.
Pasos nombrada(const QString& nuevo, const QString& elegido, const QString& cambio, const QString& quitado)
{
    return [=](QWidget* d, Cajas& c) {
        auto* t = control<QLineEdit>(d, u"Text1"_s);
        t->insert(nuevo);
        pulsar(d, u"Bt(0)"_s);
        listo(c, guardadoE);
        elegir(d, elegido);
        t->clear();
        t->insert(cambio);
        pulsar(d, u"Bt(0)"_s);
        listo(c, guardadoE);
        elegir(d, quitado);
        quitar(d, c, u"Bt(1)"_s);
        listo(c, pregunta);
    };
}

// A click on a place of the picked zone, with the dialog active.
void lugar(QWidget* d, const QString& nombre)
{
    d->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(d));
    auto* gr2 = control<Alfarje>(d, u"GR2"_s);
    const int f = filaCon(gr2, nombre);
    QVERIFY(f >= 0);
    QTest::mouseClick(gr2->viewport(), Qt::LeftButton, {}, gr2->visualRect(gr2->model()->index(f, 0)).center());
}

void zonas(QWidget* d, Cajas& c)
{
    d->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(d));
    tx(d, 0)->setText(u"Galápagos"_s);
    pulsar(d, u"Bt(0)"_s);
    listo(c, guardadoE);
    elegir(d, u"Valles"_s);
    tx(d, 0)->setText(u"Valles orientales"_s);
    pulsar(d, u"Bt(0)"_s);
    listo(c, guardadoE);
    // A place renamed: this tenant's customers of the zone follow it.
    elegir(d, u"Quito Norte"_s);
    lugar(d, u"Carcelén"_s);
    tx(d, 2)->setText(u"Carcelén Bajo"_s);
    pulsar(d, u"Bt(5)"_s);
    listo(c, u"La información se ha guardado con éxito en la base de datos!"_s);
    lugar(d, u"El Condado"_s);
    quitar(d, c, u"Bt(4)"_s);
    listo(c, hecho);
    elegir(d, u"Temporal"_s);
    quitar(d, c, u"Bt(1)"_s);
    listo(c, hecho);
}

void fechasIva(QWidget* d, Cajas& c)
{
    const int anio = QDate::currentDate().year();
    auto* dt = control<QDateEdit>(d, u"DT"_s);
    dt->setDate(QDate(anio, 6, 15));
    pulsar(d, u"Bt(0)"_s);
    listo(c, guardadoC);
    dt->setDate(QDate(anio, 10, 9));
    QVERIFY(control<Alfarje>(d, u"GR"_s)->Row() >= 0);
    quitar(d, c, u"Bt(2)"_s);
    listo(c, hecho);
}

struct Caso {
    const char* nombre;
    QString forma;
    QStringList tablas; // where tenant '1' must show the change
    Abrir abrir;
    Pasos pasos;
};

const QList<Caso>& casos()
{
    using N = clsNomencla;
    static const QList<Caso> lista{
        {"Ciudades", u"frmLsCiudad"_s, {u"lsciudades"_s}, metodo(&N::Ciudades), simple(u"Pasaje"_s, u"Tena"_s)},
        {"Departamentos", u"frmLsDepartam"_s, {u"lsdepartam"_s}, metodo(&N::Departamentos),
         simple(u"Auditoría"_s, u"Sistemas"_s)},
        {"Contenidos", u"frmLsContenido"_s, {u"lscontenidos"_s}, metodo(&N::Contenidos),
         simple(u"Funda protectora"_s, u"Manual de usuario"_s)},
        {"CategoriaClientes", u"frmLsCategorias"_s, {u"mcatclie"_s}, metodo(&N::CategoriaClientes),
         codificada(u"Supermercados"_s, u"Minorista"_s, 0, u"Minorista de barrio"_s, u"Eventual"_s)},
        {"Cargos", u"frmLsCargos"_s, {u"cargos"_s}, metodo(&N::Cargos),
         codificada(u"Supervisor"_s, u"Chofer"_s, 0, u"Chofer repartidor"_s, u"Cajero"_s)},
        {"DocumentAutorizSRI", u"frmLsDocAutSRI"_s, {u"sri_documentos"_s}, metodo(&N::DocumentAutorizSRI),
         codificada(u"18"_s, u"08"_s, 1, u"Boletos para eventos"_s, u"09"_s)},
        {"SustentoTributario", u"frmLsSustentos"_s, {u"sri_sustentos"_s}, metodo(&N::SustentoTributario),
         codificada(u"14"_s, u"05"_s, 1, u"Liquidación de viajes"_s, u"09"_s)},
        {"TipoClientes", u"frmLsTipoCli"_s, {u"mtipclie"_s}, metodo(&N::TipoClientes),
         codificada(u"Mayorista"_s, u"Preferencial"_s, 0, u"Preferencial oro"_s, u"Ocasional"_s)},
        {"ZonaClientes", u"frmLsZona"_s, {u"mzonaclie"_s, u"mzonalugar"_s, u"mcliente"_s}, metodo(&N::ZonaClientes), zonas},
        {"Contratos", u"frmLsContratos"_s, {u"lscontratos"_s}, metodo(&N::Contratos),
         nombrada(u"CT-2025-020 Limpieza de oficinas"_s, u"CT-2025-011 Servicio de seguridad"_s,
                  u"CT-2025-011 Servicio de seguridad y monitoreo"_s, u"CT-2024-001 Mantenimiento de equipos"_s)},
        {"Cuentas", u"frmLsCuentas"_s, {u"lscuentas"_s}, metodo(&N::Cuentas),
         nombrada(u"1.1.01.03 Fondo rotativo"_s, u"1.1.01.02 Caja chica"_s, u"1.1.01.02 Caja chica matriz"_s,
                  u"5.2.01.05 Gastos de movilización"_s)},
        {"Paises", u"frmLsPaises"_s, {u"lspaises"_s}, metodo(&N::Paises),
         nombrada(u"Uruguay"_s, u"Alemania"_s, u"Alemania Federal"_s, u"Chile"_s)},
        {"Medidas", u"frmMedidas"_s, {u"amedidas"_s}, metodo(&N::Medidas), simple(u"Barril"_s, u"Docena"_s, u"bar"_s)},
        {"Bancos", u"frmLsBancos"_s, {u"lsbancos"_s}, metodo(&N::Bancos),
         nombrada(u"Banco Capital"_s, u"Banco del Austro"_s, u"Banco del Austro S.A."_s, u"Cooperativa JEP"_s)},
        {"Empresas", u"frmEmpresas"_s, {u"empresas"_s, u"sucursales"_s}, metodo(&N::Empresas),
         // The rename reaches this tenant's branches of the company.
         registro({u"Nueva Empresa Uno"_s, {}, u"Av. Central 1"_s, u"022222222"_s, u"Quito"_s, u"Pichincha"_s},
                  u"Farmacia Santa Lucía"_s, 0, 0, u"Farmacia Santa Lucía Cía. Ltda."_s, u"Inversiones del Valle"_s)},
        {"Sucursales", u"frmSucursales"_s, {u"sucursales"_s}, metodo(&N::Sucursales),
         registro({u"Quito"_s, u"Sucursal Norte"_s, u"Av. de la Prensa N50"_s, u"022999888"_s}, u"Sucursal Cuenca"_s, 1, 1,
                  u"Sucursal Cuenca Centro"_s, u"El Ejido"_s)},
        {"SubProveedores", u"frmSubProveedor"_s, {u"subproveedor"_s},
         [](N& n, QSqlDatabase& db) { return n.SubProveedores(u"1"_s, 1, db); },
         // IT-100 is in review: the status that may be removed.
         registro({u"SP-004"_s, u"0990011223001"_s, u"Farmacéutica Nueva"_s, u"Av. Olmedo 100, Guayaquil"_s}, u"SP-002"_s, 0, 2,
                  u"María Fernanda Zambrano de Vera"_s, u"IT-100"_s)},
        {"ListaFechasIVA", u"frmListaFechasIVA"_s, {u"fechaivadif"_s},
         [](N& n, QSqlDatabase& db) { n.ListaFechasIVA(u"1"_s, db); return true; }, fechasIva},
    };
    return lista;
}

const QString sqlColumnas = u"SELECT COLUMN_NAME, DATA_TYPE, EXTRA FROM information_schema.COLUMNS "
                            "WHERE TABLE_SCHEMA=DATABASE() AND TABLE_NAME=? ORDER BY ORDINAL_POSITION"_s;

// Every row of the tenant, every cell quoted by the server (BLOBs as hex).
QStringList foto(QSqlDatabase& db, const QString& tabla, const QString& id)
{
    QStringList celdas, orden;
    for (const QString& c : filas(db, sqlColumnas, {tabla})) {
        const QStringList p = c.split(u'|');
        orden << u'`' + p[0] + u'`';
        celdas << (p[1].endsWith(u"blob"_s) ? u"QUOTE(HEX(%1))"_s : u"QUOTE(%1)"_s).arg(orden.last());
    }
    return filas(db, u"SELECT CONCAT_WS('|',%1) FROM `%2` WHERE id=? ORDER BY %3"_s.arg(celdas.join(u','), tabla, orden.join(u',')),
                 {id});
}

} // namespace

class PruebaInquilinos : public QObject {
    Q_OBJECT
    QSqlDatabase db;
    clsNomencla nomencla;
    QStringList tablas;
    QHash<QString, QStringList> antes2;

private Q_SLOTS:
    void initTestCase()
    {
        db = baseNueva(u"t_inquilinos"_s);
        QFile demo(QStringLiteral(NOMENCLA_FUENTES "/db/demo.sql"));
        QVERIFY(demo.open(QIODevice::ReadOnly));
        ejecutarSql(db, QString::fromUtf8(demo.readAll()));
        // Records of tenant '1' nothing refers to, so that they may be removed.
        ejecutarSql(db, u"INSERT INTO mCatClie (id,cod,cat,des,est) VALUES ('1',7,'Eventual','Sin compras frecuentes',1);\n"
                        "INSERT INTO mTipClie (id,cod,tip,des,est) VALUES ('1',6,'Ocasional','Sin crédito',1);\n"
                        "INSERT INTO mZonaClie (id,cod,zon,des,est) VALUES ('1',7,'Temporal','Ferias y eventos',1);\n"
                        "INSERT INTO empresas (id,emp,dir,tel,ciu,prov,est) VALUES "
                        "('1','Inversiones del Valle','Av. Ilaló','022860000','Sangolquí','Pichincha',1)"_s);
        tablas = filas(db, u"SELECT TABLE_NAME FROM information_schema.COLUMNS WHERE TABLE_SCHEMA=DATABASE() "
                           "AND LOWER(COLUMN_NAME)='id' ORDER BY TABLE_NAME"_s);
        // Tenant '2' gets a twin of every row of tenant '1' (codes per tenant
        // kept, where tenant '2' already holds the code its own row stays).
        for (const QString& t : std::as_const(tablas)) {
            QStringList columnas, valores;
            for (const QString& c : filas(db, sqlColumnas, {t})) {
                const QStringList p = c.split(u'|');
                if (p[2].contains(u"auto_increment"_s, Qt::CaseInsensitive))
                    continue;
                columnas << u'`' + p[0] + u'`';
                valores << (p[0].compare(u"id"_s, Qt::CaseInsensitive) == 0 ? u"'2'"_s : columnas.last());
            }
            ejecutarSql(db, u"INSERT IGNORE INTO `%1` (%2) SELECT %3 FROM `%1` WHERE id='1'"_s.arg(t, columnas.join(u','),
                                                                                                 valores.join(u',')));
            antes2.insert(t, foto(db, t, u"2"_s));
        }
        QCOMPARE(valor(db, u"SELECT COUNT(*) FROM mCatClie a JOIN mCatClie b ON a.cod=b.cod AND a.id='1' AND b.id='2'"_s).toInt(), 7);
    }

    void cada_dialogo_data()
    {
        QTest::addColumn<int>("caso");
        for (int i = 0; i < casos().size(); ++i)
            QTest::newRow(casos()[i].nombre) << i;
    }

    void cada_dialogo()
    {
        QFETCH(int, caso);
        const Caso& c = casos().at(caso);
        QList<QStringList> antes1;
        QHash<QString, QStringList> otro; // this case alone is to blame for a change
        for (const QString& t : c.tablas)
            antes1 << foto(db, t, u"1"_s);
        for (const QString& t : std::as_const(tablas))
            otro.insert(t, foto(db, t, u"2"_s));
        Cajas cajas;
        alAbrir(c.forma, [&](QWidget* d) { c.pasos(d, cajas); });
        const bool hubo = c.abrir(nomencla, db);
        if (QTest::currentTestFailed())
            return;
        QVERIFY(hubo);
        QVERIFY(!cajas.sinRespuesta);
        for (int i = 0; i < c.tablas.size(); ++i)
            QVERIFY2(foto(db, c.tablas[i], u"1"_s) != antes1[i], qPrintable(u"tenant 1 unchanged in "_s + c.tablas[i]));
        for (const QString& t : std::as_const(tablas))
            QVERIFY2(foto(db, t, u"2"_s) == otro.value(t), qPrintable(u"tenant 2 changed in "_s + t));
    }

    // After all of them, tenant '2' byte for byte, table by table.
    void inquilino_dos_intacto_data()
    {
        QTest::addColumn<QString>("tabla");
        for (const QString& t : std::as_const(tablas))
            QTest::newRow(qPrintable(t)) << t;
    }

    void inquilino_dos_intacto()
    {
        QFETCH(QString, tabla);
        QVERIFY(!antes2.value(tabla).isEmpty());
        QCOMPARE(foto(db, tabla, u"2"_s), antes2.value(tabla));
    }

    void cleanupTestCase()
    {
        qsizetype filas2 = 0;
        for (const QStringList& f : std::as_const(antes2))
            filas2 += f.size();
        qInfo("operations %d, tables %lld, rows of tenant 2 compared %lld", operaciones, qlonglong(tablas.size()),
              qlonglong(filas2));
    }
};

QTEST_MAIN(PruebaInquilinos)
#include "prueba_inquilinos.moc"
