// Two tenants whose codes and names collide in every table: each write of
// tenant '1', driven through every maintenance dialog, changes tenant '1' and
// leaves every row of tenant '2' exactly as it was.
#include "tests/prueba_estructura.h"

#include <nomencla/clsNomencla.h>

#include <QAbstractButton>
#include <QDateEdit>
#include <QFile>

using namespace Qt::StringLiterals;
using namespace prueba;

namespace {

int operaciones = 0;

// A dialog's steps, separated by "; ". "Tx(0)=text" fills a box (a date box
// with "MM-dd" of this year). "GR=text" double-clicks the row of a grid with
// the text in column 0 ("GR/1=text": in column 1). "Bt(0)" presses a button
// and expects a new box telling the save; "-Bt(1)" confirms a removal and
// expects it done.
void seguir(QWidget* d, Cajas& c, const char* pasos)
{
    for (const QString& paso : QString::fromUtf8(pasos).split(u"; "_s)) {
        const bool quitar = paso.startsWith(u'-');
        const QString nombre = paso.section(u'=', 0, 0).mid(quitar ? 1 : 0);
        const QString texto = paso.section(u'=', 1);
        auto* w = control<QWidget>(d, nombre.section(u'/', 0, 0));
        QVERIFY(w);
        if (auto* gr = qobject_cast<nomencla::Alfarje*>(w)) {
            d->activateWindow(); // the places follow a row only with the focus
            QVERIFY(QTest::qWaitForWindowActive(d));
            dobleClic(gr, filaCon(gr, texto, nombre.section(u'/', 1).toInt()));
        } else if (qobject_cast<QAbstractButton*>(w)) {
            if (quitar)
                c.responder(QMessageBox::Yes);
            const qsizetype vistas = c.vistas.size();
            pulsar(d, nombre);
            const QString caja = c.vistas.size() > vistas ? c.ultima() : QString();
            // The named lists say nothing after the question.
            QVERIFY2(quitar ? caja == u"La operación se realizó correctamente!"_s || caja.startsWith(u"Está seguro"_s)
                            : caja.startsWith(u"La información se ha guardado"_s),
                     qPrintable(paso + u": "_s + caja));
            ++operaciones;
        } else if (auto* fecha = qobject_cast<QDateEdit*>(w)) {
            fecha->setDate(QDate::fromString(u"%1-"_s.arg(QDate::currentDate().year()) + texto, Qt::ISODate));
        } else {
            w->setProperty("text", texto);
        }
        if (QTest::currentTestFailed())
            return;
    }
}

using N = clsNomencla;

// Each dialog saves a new record, renames one and removes another (the
// simple lists have no rename: the name typed is the one removed).
struct Caso {
    const char* forma;
    const char* tablas; // where tenant '1' must show the change
    std::function<bool(N&, const QString&, QSqlDatabase&)> abrir;
    const char* pasos;
};

const QList<Caso> casos{
    {"frmLsCiudad", "lsciudades", &N::Ciudades, "Text1=Pasaje; Bt(0); Text1=Tena; -Bt(2)"},
    {"frmLsDepartam", "lsdepartam", &N::Departamentos, "Text1=Auditoría; Bt(0); Text1=Sistemas; -Bt(2)"},
    {"frmLsContenido", "lscontenidos", &N::Contenidos, "Text1=Funda; Bt(0); Text1=Manual de usuario; -Bt(2)"},
    {"frmMedidas", "amedidas", &N::Medidas, "Text1=Barril; Text2=bar; Bt(0); Text1=Docena; -Bt(2)"},
    {"frmLsCategorias", "mcatclie", &N::CategoriaClientes,
     "Tx(0)=Supermercados; Bt(0); GR=Minorista; Tx(0)=Minorista de barrio; Bt(0); GR=Eventual; -Bt(1)"},
    {"frmLsCargos", "cargos", &N::Cargos,
     "Tx(0)=Supervisor; Bt(0); GR=Chofer; Tx(0)=Chofer repartidor; Bt(0); GR=Cajero; -Bt(1)"},
    {"frmLsDocAutSRI", "sri_documentos", &N::DocumentAutorizSRI,
     "Tx(0)=18; Bt(0); GR=08; Tx(1)=Boletos para eventos; Bt(0); GR=09; -Bt(1)"},
    {"frmLsSustentos", "sri_sustentos", &N::SustentoTributario,
     "Tx(0)=14; Bt(0); GR=05; Tx(1)=Liquidación de viajes; Bt(0); GR=09; -Bt(1)"},
    {"frmLsTipoCli", "mtipclie", &N::TipoClientes,
     "Tx(0)=Mayorista; Bt(0); GR=Preferencial; Tx(0)=Preferencial oro; Bt(0); GR=Ocasional; -Bt(1)"},
    // A place renamed (Bt(5)): this tenant's customers of the zone follow it.
    {"frmLsZona", "mzonaclie mzonalugar mcliente", &N::ZonaClientes,
     "Tx(0)=Galápagos; Bt(0); GR=Valles; Tx(0)=Valles orientales; Bt(0); GR=Quito Norte; GR2=Carcelén; "
     "Tx(2)=Carcelén Bajo; Bt(5); GR2=El Condado; -Bt(4); GR=Temporal; -Bt(1)"},
    {"frmLsContratos", "lscontratos", &N::Contratos,
     "Text1=CT-2025-020 Limpieza de oficinas; Bt(0); GR=CT-2025-011 Servicio de seguridad; "
     "Text1=CT-2025-011 Servicio de seguridad y monitoreo; Bt(0); GR=CT-2024-001 Mantenimiento de equipos; -Bt(1)"},
    {"frmLsCuentas", "lscuentas", &N::Cuentas,
     "Text1=1.1.01.03 Fondo rotativo; Bt(0); GR=1.1.01.02 Caja chica; Text1=1.1.01.02 Caja chica matriz; Bt(0); "
     "GR=5.2.01.05 Gastos de movilización; -Bt(1)"},
    {"frmLsPaises", "lspaises", &N::Paises,
     "Text1=Uruguay; Bt(0); GR=Alemania; Text1=Alemania Federal; Bt(0); GR=Chile; -Bt(1)"},
    {"frmLsBancos", "lsbancos", &N::Bancos,
     "Text1=Banco Capital; Bt(0); GR=Banco del Austro; Text1=Banco Austro; Bt(0); GR=Cooperativa JEP; -Bt(1)"},
    // The rename reaches this tenant's branches of the company.
    {"frmEmpresas", "empresas sucursales", &N::Empresas,
     "Tx(0)=Nueva Empresa Uno; Tx(2)=Av. Central 1; Tx(3)=022222222; Tx(4)=Quito; Tx(5)=Pichincha; Bt(0); "
     "GR=Farmacia Santa Lucía; Tx(0)=Farmacia Santa Lucía Cía. Ltda.; Bt(0); GR=Inversiones del Valle; -Bt(1)"},
    {"frmSucursales", "sucursales", &N::Sucursales,
     "Tx(0)=Quito; Tx(1)=Sucursal Norte; Tx(2)=Av. de la Prensa N50; Tx(3)=022999888; Bt(0); "
     "GR/1=Sucursal Cuenca; Tx(1)=Sucursal Cuenca Centro; Bt(0); GR/1=El Ejido; -Bt(1)"},
    // IT-100 is in review: the status that may be removed.
    {"frmSubProveedor", "subproveedor", [](N& n, auto& id, auto& db) { return n.SubProveedores(id, 1, db); },
     "Tx(0)=SP-004; Tx(1)=0990011223001; Tx(2)=Farmacéutica Nueva; Tx(3)=Av. Olmedo 100, Guayaquil; Bt(0); "
     "GR=SP-002; Tx(2)=María Fernanda Zambrano de Vera; Bt(0); GR=IT-100; -Bt(1)"},
    // The second date picks the demo's row that is removed.
    {"frmListaFechasIVA", "fechaivadif",
     [](N& n, auto& id, auto& db) {
         n.ListaFechasIVA(id, db);
         return true;
     },
     "DT=06-15; Bt(0); DT=10-09; -Bt(2)"},
};

} // namespace

class PruebaInquilinos : public QObject {
    Q_OBJECT
    QSqlDatabase db;
    clsNomencla nomencla;
    QHash<QString, QStringList> antes2; // tenant '2', table by table
    qsizetype filas2 = 0;

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
        // Tenant '2' gets a twin of every row of tenant '1' (codes per tenant
        // kept, where tenant '2' already holds the code its own row stays).
        const QString gemelos =
            u"SELECT TABLE_NAME, GROUP_CONCAT('`',COLUMN_NAME,'`' ORDER BY ORDINAL_POSITION), "
            "GROUP_CONCAT(IF(COLUMN_NAME='id','''2''',CONCAT('`',COLUMN_NAME,'`')) ORDER BY ORDINAL_POSITION) "
            "FROM information_schema.COLUMNS WHERE TABLE_SCHEMA=DATABASE() AND EXTRA NOT LIKE '%auto_increment%' "
            "GROUP BY TABLE_NAME HAVING SUM(COLUMN_NAME='id')"_s;
        for (const QString& f : filas(db, gemelos)) {
            const QStringList t = f.split(u'|');
            ejecutarSql(db, u"INSERT IGNORE INTO `%1` (%2) SELECT %3 FROM `%1` WHERE id='1'"_s.arg(t[0], t[1], t[2]));
            antes2.insert(t[0], foto(db, t[0], u"2"_s));
            QVERIFY2(!antes2[t[0]].isEmpty(), qPrintable(t[0]));
            filas2 += antes2[t[0]].size();
        }
        QCOMPARE(valor(db, u"SELECT COUNT(*) FROM mCatClie a JOIN mCatClie b ON a.cod=b.cod AND a.id='1' AND b.id='2'"_s).toInt(), 7);
    }

    // Tenant '2' is compared byte for byte, in every table, after each dialog
    // (the first dialog to fail is the one to blame).
    void cada_dialogo_data()
    {
        QTest::addColumn<int>("caso");
        for (int i = 0; i < casos.size(); ++i)
            QTest::newRow(casos[i].forma) << i;
    }

    void cada_dialogo()
    {
        QFETCH(int, caso);
        const Caso& c = casos.at(caso);
        const QStringList tablas = QString::fromUtf8(c.tablas).split(u' ');
        QList<QStringList> antes1;
        for (const QString& t : tablas)
            antes1 << foto(db, t, u"1"_s);
        Cajas cajas;
        alAbrir(QString::fromUtf8(c.forma), [&](QWidget* d) { seguir(d, cajas, c.pasos); });
        const bool hubo = c.abrir(nomencla, u"1"_s, db);
        if (QTest::currentTestFailed())
            return;
        QVERIFY(hubo);
        QVERIFY(!cajas.sinRespuesta);
        for (int i = 0; i < tablas.size(); ++i)
            QVERIFY2(foto(db, tablas[i], u"1"_s) != antes1[i], qPrintable(u"tenant 1 unchanged in "_s + tablas[i]));
        for (auto [t, antes] : antes2.asKeyValueRange())
            QVERIFY2(foto(db, t, u"2"_s) == antes, qPrintable(u"tenant 2 changed in "_s + t));
    }

    void cleanupTestCase()
    {
        qInfo("operations %d, tables %lld, rows of tenant 2 compared %lld", operaciones, qlonglong(antes2.size()),
              qlonglong(filas2));
    }
};

QTEST_MAIN(PruebaInquilinos)
#include "prueba_inquilinos.moc"
