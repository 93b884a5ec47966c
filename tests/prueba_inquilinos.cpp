// Two tenants whose codes and names collide in every table: each write of
// tenant '1', driven through every maintenance dialog, changes tenant '1' and
// leaves every row of tenant '2' exactly as it was.
#include "tests/recorrido.h"

using namespace Qt::StringLiterals;
using namespace prueba;

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
        cargar(db, "db/demo.sql");
        ejecutarSql(db, QString::fromUtf8(sinReferencias));
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
        porCaso(casos, [](const Caso& c) { return QString::fromUtf8(c.forma); });
    }

    void cada_dialogo()
    {
        QFETCH(int, i);
        const Caso& c = casos.at(i);
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
        for (int t = 0; t < tablas.size(); ++t)
            QVERIFY2(foto(db, tablas[t], u"1"_s) != antes1[t], qPrintable(u"tenant 1 unchanged in "_s + tablas[t]));
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
