// Two clerks numbering keys with MAX(cod)+1 at the same time: no failure
// reaches them and no row is lost.
#include "tests/support/Prueba.h"

#include "core/BaseDatos.h"
#include "core/Conflictos.h"
#include "core/Mensajes.h"

#include <QThread>
#include <atomic>

using namespace Qt::StringLiterals;
using namespace prueba;
using namespace nomencla;

class PruebaConcurrencia : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void claves_al_mismo_tiempo()
    {
        QSqlDatabase db = baseNueva(u"t_concurrencia"_s);
        constexpr int porEmpleado = 200;
        std::atomic<int> fallos{0};
        auto empleado = [&](int n) {
            {
                // Opened by the first statement; a refusal counts as a failure.
                QSqlDatabase propia = QSqlDatabase::cloneDatabase(db, u"empleado%1"_s.arg(n));
                auto insertar = [&](qint32 clave) {
                    ejecutar(propia, u"INSERT INTO mCatClie (id,cod,cat) VALUES ('1',?,?)"_s, {clave, u"Empleado %1"_s.arg(n)});
                };
                for (int i = 0; i < porEmpleado; ++i) {
                    try {
                        insertarConClaveSiguiente(propia, u"SELECT MAX(cod) FROM mCatClie WHERE id=?"_s, {u"1"_s}, insertar, 1000);
                    } catch (const ErrorBD& e) {
                        qWarning("%s", e.what());
                        ++fallos;
                    }
                }
            }
            QSqlDatabase::removeDatabase(u"empleado%1"_s.arg(n));
        };
        std::unique_ptr<QThread> a(QThread::create(empleado, 1)), b(QThread::create(empleado, 2));
        a->start();
        b->start();
        QVERIFY(a->wait(300000) && b->wait(300000));
        QCOMPARE(fallos.load(), 0);
        // As many rows as inserts, each with its own key, numbered without gaps.
        QCOMPARE(filas(db, u"SELECT COUNT(*), COUNT(DISTINCT cod), MAX(cod) FROM mCatClie WHERE id='1'"_s),
                 QStringList{u"%1|%1|%1"_s.arg(2 * porEmpleado)});
    }

    void reintentos_data()
    {
        QTest::addColumn<QString>("codigo");
        QTest::addColumn<bool>("claveNumerada"); // thrown as insertarConClaveSiguiente gives up
        QTest::addColumn<int>("fallos");         // before the run that works
        QTest::addColumn<int>("corridas");       // runs made
        QTest::addColumn<QString>("caja");       // the start of the box's text when it fails ("" when it does not)
        QTest::newRow("deadlock, then done") << u"1213"_s << false << 3 << 4 << QString();
        QTest::newRow("deadlock every time") << u"1213"_s << false << 99 << intentosPorConflicto << u"Otros usuarios"_s;
        QTest::newRow("numbered key taken, then done") << u"1062"_s << true << 2 << 3 << QString();
        QTest::newRow("duplicate of the data") << u"1062"_s << false << 99 << 1 << u"driver"_s;
        QTest::newRow("node out of the group") << u"1047"_s << false << 99 << 1 << u"El servidor de la base"_s;
        QTest::newRow("lock wait timeout") << u"1205"_s << false << 99 << 1 << u"driver"_s;
    }

    // What is run again and what is shown, as the server's code says.
    void reintentos()
    {
        QFETCH(QString, codigo);
        QFETCH(bool, claveNumerada);
        QFETCH(int, fallos);
        QFETCH(int, corridas);
        QFETCH(QString, caja);
        const ErrorBD error(QSqlError(u"driver"_s, codigo == u"1062"_s ? u"Duplicate entry"_s : u"Lock wait or other"_s,
                                      QSqlError::StatementError, codigo));
        int n = 0;
        Cajas cajas;
        try {
            conReintentos([&] {
                if (++n <= fallos) {
                    if (claveNumerada)
                        throw ClaveTomada(error);
                    throw error;
                }
            });
            QVERIFY(caja.isEmpty());
        } catch (const ErrorBD& e) {
            mostrarErrorBD(nullptr, e);
            QVERIFY2(cajas.ultima().startsWith(caja) && !caja.isEmpty(), qPrintable(cajas.ultima()));
        }
        QCOMPARE(n, corridas);
    }
};

QTEST_MAIN(PruebaConcurrencia)
#include "prueba_concurrencia.moc"
