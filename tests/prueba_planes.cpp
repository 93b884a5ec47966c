// Every statement the library sends is served by an index whatever the size
// of the tenants, and no write of one tenant reaches another's rows: the
// dialogs are driven over a database where tenant '1' holds a third of each
// table beside 19 other tenants, and tenant '2' a twin of each of tenant
// '1''s demo rows (codes and names colliding in every table), compared byte
// for byte after each dialog (the first dialog to fail is the one to blame).
// Each statement sent
// is recorded with its values, and each is then run under ANALYZE. A plan
// fails on a full scan (of the table or of an index), on a sort of more rows
// than come back, or on more rows read than twice the rows that come back
// or change (plus a few). Every statement written in the sources must have
// been reached by the walk, so a new one cannot escape the check.
#include "tests/recorrido.h"

#include "catalogues/frmLsComponente.h"
#include "catalogues/frmLsUsos.h"
#include "core/BaseDatos.h"
#include "core/Controles.h"
#include "core/Module1.h"

#include <nomencla/clsNomencla.h>

#include <QCheckBox>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QRegularExpression>
#include <QSqlDriver>
#include <QSqlField>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace prueba;

namespace {

constexpr int filasInquilino = 6000; // tenant '1'; each of the 19 others 2/19 of it: tenant '1' holds a third

// The statements sent, in the order first seen, with up to four sets of values each.
struct Enviada {
    QString sql;
    QList<QVariantList> valores;
    bool mariadb = true;
};
QList<Enviada> enviadas;

void registrar(const QSqlDatabase& db, const QString& sql, const QVariantList& valores)
{
    auto it = std::find_if(enviadas.begin(), enviadas.end(), [&](const Enviada& e) { return e.sql == sql; });
    if (it == enviadas.end()) {
        enviadas.append({sql, {}, db.driverName() != u"QSQLITE"_s});
        it = std::prev(enviadas.end());
    }
    if (it->valores.size() < 4 && !it->valores.contains(valores))
        it->valores.append(valores);
}

template <class F> bool abrir(N&, const QString& idEmp, QSqlDatabase& db)
{
    nomencla::M().IdEmp = idEmp;
    nomencla::M().Conexion = db;
    nomencla::M().instancia<F>().Show();
    return nomencla::M().HuboCambios;
}

// Removals of records in use by many rows (refused), places added to a
// zone before and after its save.
const QList<Caso> masCasos{
    {"frmLsCiudad", "", &N::Ciudades, "Text1=Ciudad 7; ?Bt(2)"},
    {"frmLsDepartam", "", &N::Departamentos, "Text1=Departamento 7; ?Bt(2)"},
    {"frmLsContenido", "", &N::Contenidos, "Text1=Objeto 7; ?Bt(2)"},
    {"frmMedidas", "", &N::Medidas, "Text1=Medida 7; ?Bt(2)"},
    {"frmLsCategorias", "", &N::CategoriaClientes, "GR=Categoría 5; ?Bt(1)"},
    {"frmLsCargos", "", &N::Cargos, "GR=Cargo 5; ?Bt(1)"},
    {"frmLsTipoCli", "", &N::TipoClientes, "GR=Tipo 5; ?Bt(1)"},
    // Zone 1005: its place 'Lugar 404' carries customers; 'Lugar 424' is renamed with its customers.
    {"frmLsZona", "", &N::ZonaClientes,
     "GR=Zona 5; ?Bt(1); GR=Zona 5; GR2=Lugar 404; ?Bt(4); GR2=Lugar 424; Tx(2)=Lugar 424 Norte; Bt(5)"},
    {"frmEmpresas", "", &N::Empresas, "GR=Empresa 7; ?Bt(1)"},
    {"frmLsZona", "", &N::ZonaClientes, "Tx(0)=Zona nueva; Tx(2)=Lugar pendiente; ?Bt(5); Bt(0); "
                                        "GR=Zona 6; Tx(2)=Lugar nuevo; ?Bt(5)"},
    // Lists no method opens: shown as a method would show them.
    {"frmLsUsos", "", abrir<nomencla::frmLsUsos>, "Text1=Uso nuevo; Bt(0); Text1=Uso nuevo; -Bt(2)"},
    {"frmLsComponente", "", abrir<nomencla::frmLsComponente>, "Text1=Pieza nueva; Bt(0); Text1=Pieza nueva; -Bt(2)"},
};

const QList<Caso> todos = casos + masCasos;

// The statement with its values written in, as the driver quotes them.
QString conValores(QSqlDatabase& db, const QString& sql, const QVariantList& valores)
{
    QString r;
    qsizetype n = 0;
    for (const QChar c : sql) {
        if (c != u'?') {
            r += c;
            continue;
        }
        QVariant v = valores.value(n++);
        if (v.typeId() == QMetaType::QString && v.toString().isNull())
            v = u""_s;
        QSqlField campo(u"v"_s, v.metaType());
        campo.setValue(v);
        r += db.driver()->formatValue(campo);
    }
    return r;
}

struct Medida {
    qint64 leidas = 0, ordenadas = 0;
    double cambiadas = 0;
    QStringList completas;
};

// Walks the plan of ANALYZE FORMAT=JSON: rows read from each table, those
// read under a sort, the rows an UPDATE or DELETE changes, full scans.
void medir(const QJsonValue& v, Medida& m, bool bajoOrden)
{
    if (v.isArray()) {
        for (const QJsonValue& x : v.toArray())
            medir(x, m, bajoOrden);
        return;
    }
    if (!v.isObject())
        return;
    const QJsonObject o = v.toObject();
    for (auto it = o.begin(); it != o.end(); ++it) {
        if (it.key() == u"table" && it->isObject()) {
            const QJsonObject t = it->toObject();
            const QString nombre = t[u"table_name"].toString();
            const QString acceso = t[u"access_type"].toString();
            const double filas = t[u"r_rows"].toDouble() * (t.contains(u"r_loops") ? t[u"r_loops"].toDouble() : 1);
            if (!nombre.startsWith(u'<')) {
                if (acceso == u"ALL"_s || acceso == u"index"_s)
                    m.completas << nombre + u" ("_s + acceso + u")"_s;
                m.leidas += qint64(filas);
                if (bajoOrden)
                    m.ordenadas += qint64(filas);
                if (t.contains(u"update") || t.contains(u"delete"))
                    m.cambiadas += filas * t[u"r_filtered"].toDouble() / 100.0;
            }
        }
        medir(*it, m, bajoOrden || it.key() == u"filesort"_s);
    }
}

// Every SQL text literal of the library's sources that begins a statement.
QStringList sentenciasEscritas()
{
    static const QRegularExpression literal(u"u\"((?:[^\"\\\\]|\\\\.)*)\""_s);
    static const QRegularExpression comienzo(u"^\\s*(SELECT|INSERT|UPDATE|DELETE)\\s"_s,
                                             QRegularExpression::CaseInsensitiveOption);
    // Statements that name no table (LAST_INSERT_ID) have no plan.
    static const QRegularExpression tabla(u"\\b(FROM|INTO|UPDATE)\\s+\\w"_s, QRegularExpression::CaseInsensitiveOption);
    QStringList r;
    for (const char* dir : {"core", "catalogues", "company", "pickers", "api"}) {
        QDirIterator it(QStringLiteral(NOMENCLA_FUENTES "/") + QLatin1StringView(dir), {u"*.cpp"_s, u"*.h"_s});
        while (it.hasNext()) {
            QFile f(it.next());
            if (!f.open(QIODevice::ReadOnly))
                continue;
            const QString texto = QString::fromUtf8(f.readAll());
            for (auto m = literal.globalMatch(texto); m.hasNext();) {
                const QString s = m.next().captured(1);
                if (comienzo.match(s).hasMatch() && tabla.match(s).hasMatch())
                    r << s;
            }
        }
    }
    return r;
}

} // namespace

class PruebaPlanes : public QObject {
    Q_OBJECT
    QSqlDatabase db;
    QSqlDatabase acces;
    clsNomencla nomencla;
    QHash<QString, QStringList> antes2; // tenant '2', table by table

    void inquilino2Intacto()
    {
        for (auto [t, antes] : antes2.asKeyValueRange())
            QVERIFY2(foto(db, t, u"2"_s) == antes, qPrintable(u"tenant 2 changed in "_s + t));
    }

private Q_SLOTS:
    void initTestCase()
    {
        db = baseNueva(u"t_planes"_s);
        cargar(db, "db/demo.sql");
        ejecutarSql(db, QString::fromUtf8(sinReferencias));
        // Tenant '2' gets a twin of every row of tenant '1' (codes per tenant
        // kept; where the code is global the twin is left out).
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
        }
        QCOMPARE(valor(db, u"SELECT COUNT(*) FROM mCatClie a JOIN mCatClie b ON a.cod=b.cod AND a.id='1' AND b.id='2'"_s).toInt(), 7);
        ejecutarSql(db, u"SET @inquilino='1', @filas=%1, @vecinos=19, @filas_vecino=%2"_s.arg(filasInquilino)
                            .arg(filasInquilino * 2 / 19));
        cargar(db, "db/volumen.sql");
        acces = almacenPendientes();
        nomencla::observarSentencias(registrar);
    }

    void cada_dialogo_data()
    {
        porCaso(todos, [](const Caso& c) { return QString::fromUtf8(c.forma); });
    }

    void cada_dialogo()
    {
        QFETCH(int, i);
        const Caso& c = todos.at(i);
        const QStringList tablas = QString::fromUtf8(c.tablas).split(u' ', Qt::SkipEmptyParts);
        QList<QStringList> antes1;
        for (const QString& t : tablas)
            antes1 << foto(db, t, u"1"_s);
        Cajas cajas;
        alAbrir(QString::fromUtf8(c.forma), [&](QWidget* d) { seguir(d, cajas, c.pasos); });
        const bool hubo = c.abrir(nomencla, u"1"_s, db);
        if (QTest::currentTestFailed())
            return;
        QVERIFY(!cajas.sinRespuesta);
        // Where the walk writes, tenant '1' shows it.
        QVERIFY(hubo || tablas.isEmpty());
        for (int t = 0; t < tablas.size(); ++t)
            QVERIFY2(foto(db, tablas[t], u"1"_s) != antes1[t], qPrintable(u"tenant 1 unchanged in "_s + tablas[t]));
        inquilino2Intacto();
    }

    // The logo stored and read back; the pickers with each of their filters.
    void selectores()
    {
        Cajas cajas;
        QTemporaryDir dir;
        const QString png = dir.filePath(u"logo.png"_s);
        QImage imagen(8, 8, QImage::Format_RGB32);
        imagen.fill(Qt::darkBlue);
        QVERIFY(imagen.save(png, "PNG"));
        nomencla::setElectorArchivo([&](QWidget*, const QString&, const QString&) { return png; });
        alAbrir(u"frmEmpresas"_s, [&](QWidget* d) {
            auto* gr = control<nomencla::Alfarje>(d, u"GR"_s);
            dobleClic(gr, filaCon(gr, u"Empresa 8"_s));
            QTest::mouseClick(control<QLabel>(d, u"P1"_s), Qt::LeftButton);
            pulsar(d, u"Bt(0)"_s);
            dobleClic(gr, filaCon(gr, u"Empresa 8"_s));
        });
        nomencla.Empresas(u"1"_s, db);
        nomencla::setElectorArchivo({});

        alAbrir(u"frmImpresion"_s, [](QWidget*) {});
        nomencla.ElegirModeloImpresion(u"1"_s, db, impFactura);
        // A country added from the lot capture refills its combo.
        alAbrir(u"frmLotes"_s, [&](QWidget* d) {
            alAbrir(u"frmLsPaises"_s, [&](QWidget* p) { seguir(p, cajas, "Text1=Islandia; Bt(0)"); });
            pulsar(d, u"Bt(2)"_s);
        });
        InfoLotes lote;
        nomencla.AgregarLoteCaducidad(u"1"_s, db, lote);
        for (const tipoLoteLS tipo : {lsLotesTodos, lsLotesValidos, lsLotesActivos}) {
            for (const qint32 bodega : {-1, 2}) {
                alAbrir(u"frmCaducidades"_s, [](QWidget* d) {
                    control<QCheckBox>(d, u"Chk(0)"_s)->click();
                    control<QCheckBox>(d, u"Chk(1)"_s)->click();
                    teclear(control<QWidget>(d, u"Text1"_s), u"L1"_s);
                });
                nomencla.SeleccionarLote(u"1"_s, db, 1005, bodega, tipo);
            }
        }
        const qint32 pago = valor(db, u"SELECT MIN(cod) FROM tCabPagoCli WHERE id='1'"_s).toInt();
        alAbrir(u"frmListaFacPaga"_s, [](QWidget*) {});
        nomencla.ListaFacturasCanceladas(u"1"_s, pago, db);
        alAbrir(u"frmPendientes"_s, [](QWidget*) {});
        nomencla.FacturasPendientes(u"1"_s, QString(), db, acces);
        QVERIFY(!cajas.sinRespuesta);
        inquilino2Intacto();
    }

    // Each statement, with each set of values it was sent with, under ANALYZE
    // (writes rolled back).
    void cada_sentencia()
    {
        nomencla::observarSentencias({});
        QStringList fallos;
        int analizadas = 0;
        for (const Enviada& e : std::as_const(enviadas)) {
            // Inserts of values and settings have no plan.
            if (!e.mariadb || !QRegularExpression(u"^(SELECT|UPDATE|DELETE)\\s"_s, QRegularExpression::CaseInsensitiveOption)
                                    .match(e.sql).hasMatch())
                continue;
            for (const QVariantList& valores : e.valores) {
                const QString sql = conValores(db, e.sql, valores);
                QVERIFY(db.transaction());
                QSqlQuery q(db);
                QVERIFY2(q.exec(u"ANALYZE FORMAT=JSON "_s + sql) && q.next(), qPrintable(q.lastError().text() + sql));
                const QJsonDocument plano = QJsonDocument::fromJson(q.value(0).toString().toUtf8());
                q.finish();
                Medida m;
                medir(plano.object(), m, false);
                double devueltas = m.cambiadas;
                if (e.sql.startsWith(u"SELECT"_s, Qt::CaseInsensitive)) {
                    QVERIFY(q.exec(sql));
                    devueltas = 0;
                    while (q.next())
                        ++devueltas;
                }
                QVERIFY(db.rollback());
                ++analizadas;
                QString fallo;
                if (!m.completas.isEmpty())
                    fallo = u"full scan of "_s + m.completas.join(u", "_s);
                else if (m.ordenadas > devueltas + 20)
                    fallo = u"sorts %1 rows for %2"_s.arg(m.ordenadas).arg(devueltas);
                else if (m.leidas > 2 * devueltas + 20)
                    fallo = u"reads %1 rows for %2"_s.arg(m.leidas).arg(devueltas);
                if (!fallo.isEmpty())
                    fallos << fallo + u": "_s + sql;
            }
        }
        qInfo("statements sent %lld, runs analysed %d", qlonglong(enviadas.size()), analizadas);
        for (const QString& f : std::as_const(fallos))
            qWarning("%s", qPrintable(f));
        QVERIFY2(fallos.isEmpty(), qPrintable(u"%1 plans out of proportion (listed above)"_s.arg(fallos.size())));
    }

    // Every statement written in the sources was sent by the walk above.
    void todas_alcanzadas()
    {
        QStringList faltan;
        const QStringList escritas = sentenciasEscritas();
        for (const QString& s : escritas)
            if (std::none_of(enviadas.begin(), enviadas.end(), [&](const Enviada& e) { return e.sql.contains(s); }))
                faltan << s;
        qInfo("statements written %lld", qlonglong(escritas.size()));
        QVERIFY2(faltan.isEmpty(), qPrintable(u"never sent:\n"_s + faltan.join(u"\n"_s)));
    }
};

QTEST_MAIN(PruebaPlanes)
#include "prueba_planes.moc"
