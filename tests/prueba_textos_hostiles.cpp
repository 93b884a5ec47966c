// Hostile text typed or pasted into the boxes: stored and read back exactly
// (trimmed, control characters as blanks, cut at the box's length), and no
// other row changes.
#include "tests/support/Prueba.h"

#include "core/Alfarje.h"

#include <nomencla/clsNomencla.h>

#include <QLineEdit>

using namespace Qt::StringLiterals;
using namespace prueba;
using nomencla::Alfarje;

namespace {

struct Entrada {
    QString pegado;
    QString guardado;
};

const QList<Entrada>& entradas()
{
    static const QList<Entrada> lista{
        {u"O'Brien"_s, u"O'Brien"_s},
        {u"''"_s, u"''"_s},
        {u"\\' OR 1=1 --"_s, u"\\' OR 1=1 --"_s},
        {u"C:\\temp\\"_s, u"C:\\temp\\"_s},
        {u"\"comillas\""_s, u"\"comillas\""_s},
        {u"100% _x_"_s, u"100% _x_"_s},
        {u"'); DROP TABLE x; --"_s, u"'); DROP TABLE x; --"_s},
        {u"Ca\u0301ceres"_s, u"Ca\u0301ceres"_s},
        {u"Macas 😀"_s, u"Macas 😀"_s},
        {u"a\tb\nc"_s, u"a b c"_s},
        {u"   Lago Agrio   "_s, u"Lago Agrio"_s},
        {u"Santo Domingo de los Tsáchilas y más"_s, u"Santo Domingo de los Tsác"_s},
        {u"\u0000nul"_s, u"nul"_s},
    };
    return lista;
}

} // namespace

class PruebaTextosHostiles : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void en_las_listas_de_nombres()
    {
        QSqlDatabase db = baseNueva(u"t_hostiles"_s);
        ejecutarSql(db, u"INSERT INTO lsCiudades (id,ciu) VALUES ('2','Quito'),('2','O''Brien')"_s);
        const QStringList otroAntes = filas(db, u"SELECT * FROM lsCiudades WHERE id='2' ORDER BY pk"_s);
        Cajas cajas;
        QStringList enGrilla;
        alAbrir(u"frmLsCiudad"_s, [&](QWidget* d) {
            auto* tx = control<QLineEdit>(d, u"Text1"_s);
            auto* gr = control<Alfarje>(d, u"GR"_s);
            for (const Entrada& e : entradas()) {
                tx->clear();
                tx->insert(e.pegado); // as a paste: through the box's rules
                tecla(tx, Qt::Key_Return);
                QCOMPARE(cajas.ultima(), u"La información se ha guardado correctamente!"_s);
            }
            for (int i = 0; i < gr->RowCount(); ++i)
                enGrilla << gr->CellText(i, 0);
            // Each can be found and removed again by its own text.
            tx->clear();
            tx->insert(u"'); DROP"_s);
            QVERIFY(gr->Row() >= 0);
            QCOMPARE(gr->CellText(), u"'); DROP TABLE x; --"_s);
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(2)"_s);
            QCOMPARE(cajas.ultima(), u"La operación se realizó correctamente!"_s);
        });
        clsNomencla nomencla;
        QVERIFY(nomencla.Ciudades(u"1"_s, db));
        QStringList esperado;
        for (const Entrada& e : entradas())
            esperado << e.guardado.trimmed();
        esperado.removeAll(QString()); // nothing to save
        QCOMPARE(enGrilla, esperado);
        esperado.removeAll(u"'); DROP TABLE x; --"_s);
        QStringList guardado = filas(db, u"SELECT ciu FROM lsCiudades WHERE id='1' ORDER BY pk"_s);
        QCOMPARE(guardado, esperado);
        QCOMPARE(filas(db, u"SELECT * FROM lsCiudades WHERE id='2' ORDER BY pk"_s), otroAntes);
    }
};

QTEST_MAIN(PruebaTextosHostiles)
#include "prueba_textos_hostiles.moc"
