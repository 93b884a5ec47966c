// The public class and the shared state.
#include "tests/support/Prueba.h"

#include "core/Module1.h"

#include <nomencla/clsNomencla.h>

using namespace Qt::StringLiterals;
using namespace prueba;
using nomencla::M;

class PruebaClase : public QObject {
    Q_OBJECT
    QSqlDatabase db;

private Q_SLOTS:
    void initTestCase() { db = baseNueva(u"t_clase"_s); }

    // ConfirmaUsuario only keeps the company and the connection. The end of
    // an object gives up the shared services and nothing else; the next call
    // makes them again and still works.
    void confirma_usuario_y_fin_del_objeto()
    {
        {
            clsNomencla n;
            QVERIFY(!n.ConfirmaUsuario(u"42"_s, db, 7));
            QCOMPARE(M().IdEmp, u"42"_s);
            M().grillas();
        }
        QVERIFY(!M().Grillas);
        QCOMPARE(M().Conexion.databaseName(), db.databaseName());
        alAbrir(u"frmLsDepartam"_s, [](QWidget*) {});
        QVERIFY(!clsNomencla::aplicacion().Departamentos(u"1"_s, db));
        QVERIFY(M().Grillas);
    }
};

QTEST_MAIN(PruebaClase)
#include "prueba_clase.moc"
