// Two clerks numbering keys with MAX(cod)+1 at the same time: no failure
// reaches them and no row is lost.
#include "tests/support/Prueba.h"

#include "core/BaseDatos.h"

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
};

QTEST_MAIN(PruebaConcurrencia)
#include "prueba_concurrencia.moc"
