// The public class and the shared state.
#include "tests/support/Prueba.h"

#include "core/Module1.h"
#include "catalogues/frmLsCiudad.h"

#include <nomencla/clsNomencla.h>

using namespace Qt::StringLiterals;
using namespace prueba;
using nomencla::M;

class PruebaClase : public QObject {
    Q_OBJECT
    QSqlDatabase db;

private Q_SLOTS:
    void initTestCase() { db = baseNueva(u"t_clase"_s); }

    void confirma_usuario_solo_guarda()
    {
        clsNomencla n;
        QVERIFY(!n.ConfirmaUsuario(u"42"_s, db, 7));
        QCOMPARE(M().IdEmp, u"42"_s);
        QCOMPARE(M().Conexion.databaseName(), db.databaseName());
    }

    // The end of an object gives up the shared services and nothing else; the
    // next call makes them again and still works.
    void fin_del_objeto()
    {
        {
            clsNomencla n;
            M().servicios();
            QVERIFY(M().Servicios);
            alAbrir(u"frmLsCiudad"_s, [](QWidget*) {});
            n.Ciudades(u"1"_s, db);
        }
        QVERIFY(!M().Servicios);
        QVERIFY(!M().Grillas);
        QCOMPARE(M().Conexion.databaseName(), db.databaseName());
        QVERIFY(M().existe<nomencla::frmLsCiudad>());
        alAbrir(u"frmLsDepartam"_s, [](QWidget*) {});
        QVERIFY(!clsNomencla::aplicacion().Departamentos(u"1"_s, db));
        QVERIFY(M().Grillas);
    }
};

QTEST_MAIN(PruebaClase)
#include "prueba_clase.moc"
