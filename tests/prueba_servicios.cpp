// The services against the private server: key filter, dates and numbers,
// value-to-label expressions, grid and combo filling, image storage; the
// public class and the shared state.
#include "tests/support/Prueba.h"

#include "core/Alfarje.h"
#include "core/BaseDatos.h"
#include "core/Controles.h"
#include "core/Module1.h"
#include "core/clsGrillas.h"
#include "core/clsServicios.h"

#include <nomencla/clsNomencla.h>

#include <QComboBox>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace prueba;
using namespace nomencla;

class PruebaServicios : public QObject {
    Q_OBJECT
    QSqlDatabase db;
    clsServicios servicios;
    clsGrillas grillas;

private Q_SLOTS:
    void initTestCase() { db = baseNueva(u"t_servicios"_s); }

    // The filter wired to a box, as the dialogs do; control keys pass.
    void filtro_de_teclas()
    {
        CajaTexto caja;
        int decimales = 2;
        QObject::connect(&caja, &CajaTexto::KeyPress, &caja,
                         [&](int& k) { k = servicios.FiltrarTecla(&caja, k, decimales, 0, 6, 0); });
        teclear(&caja, u"-12a,5.x67"_s); // minus, letters, a second point, a third decimal
        QCOMPARE(caja.text(), u"12.56"_s);
        tecla(&caja, Qt::Key_Backspace);
        QCOMPARE(caja.text(), u"12.5"_s);
        caja.clear();
        decimales = 0;
        teclear(&caja, u"12.5"_s);
        QCOMPARE(caja.text(), u"125"_s);
    }

    void fechas_y_numeros()
    {
        const QLocale es(QLocale::Spanish, QLocale::Ecuador);
        QCOMPARE(servicios.FechaSql(u"03/02/2026"_s), u"2026-02-03"_s);
        QCOMPARE(servicios.FechaSql(es.toString(QDate(2026, 2, 3), u"ddd. dd-MMM-yyyy"_s)), u"2026-02-03"_s);
        QCOMPARE(servicios.FechaSql(u"no es fecha"_s), QString());
        QCOMPARE(clsServicios::Val(u" 30 días"_s), 30.0);
    }

    // Values and labels are bound, so a label may hold quotes.
    void expresion_caso()
    {
        ejecutarSql(db, u"INSERT INTO empresas (id,emp,act,est) VALUES ('1','Uno',1,1),('1','Dos',8,1),('1','Tres',9,1)"_s);
        const ExpresionSql e = servicios.ExpresionCaso(u"act"_s, u"0,1,8"_s, u"Comercio General,Farmacia,Transporte 'x'"_s);
        QVariantList valores = e.valores;
        valores << u"1"_s;
        QCOMPARE(filas(db, u"SELECT emp,"_s + e.texto + u" AS activ FROM Empresas WHERE  id=? ORDER BY cod"_s, valores),
                 (QStringList{u"Uno|Farmacia"_s, u"Dos|Transporte 'x'"_s, u"Tres|9"_s}));
    }

    // Fields matched ignoring case, Nulls and missing fields as empty cells,
    // more fields than columns kept; the grid emptied first.
    void llenar_grilla()
    {
        ejecutarSql(db, u"INSERT INTO mTipClie (id,cod,tip,des,cre,pla,descu,est) VALUES "
                        "('1',1,'Mayorista','',1500.5,30,2.5,1),('1',2,'Minorista','Al detal',0,0,0,1)"_s);
        Alfarje gr;
        gr.setFormatocolumnas(u"<TIPO     |<DESCRIPCION   |."_s);
        gr.AddItem(u"queda\tfuera"_s);
        grillas.LlenarGrilla(db, &gr, u"SELECT tip,NULLIF(des,'') AS des,cre,cod FROM mTipClie WHERE id=? ORDER BY tip"_s, {u"1"_s},
                             u"TIP,Des,noHay,cre,cod"_s);
        QCOMPARE(gr.RowCount(), 2);
        QCOMPARE(gr.CellText(0, 0), u"Mayorista"_s);
        QCOMPARE(gr.CellText(0, 1), QString());
        QCOMPARE(gr.CellText(0, 2), QString());
        QCOMPARE(gr.CellValue(0, 3), 1500.5);
        QCOMPARE(gr.CellText(1, 4), u"2"_s);
    }

    void llenar_combo()
    {
        QComboBox combo;
        combo.addItem(u"viejo"_s);
        servicios.LlenarCombo(db, u"SELECT emp, cod FROM empresas WHERE id=? ORDER BY emp"_s, {u"1"_s}, &combo,
                              u"emp"_s, u"cod"_s);
        QCOMPARE(combo.count(), 3);
        QCOMPARE(combo.itemData(0).toInt(), valor(db, u"SELECT cod FROM empresas WHERE emp='Dos'"_s).toInt());
    }

    // Up to 4 MiB stored as they are, only in the tenant's row; a larger file
    // or a table name that is not a name stores nothing.
    void guardar_imagen()
    {
        ejecutarSql(db, u"INSERT INTO empresas (id,emp,est) VALUES ('7','Con logo',1)"_s);
        const int cod = valor(db, u"SELECT cod FROM empresas WHERE id='7'"_s).toInt();
        QByteArray bytes(clsGrillas::tamanoMaximoImagen + 1, '\0');
        for (qsizetype i = 0; i < bytes.size(); ++i)
            bytes[i] = char(i * 7);
        QTemporaryDir dir;
        const QString ruta = dir.filePath(u"logo.png"_s);
        auto guardar = [&](const QString& tabla, const QByteArray& contenido, const QString& id = u"7"_s) {
            QFile f(ruta);
            f.open(QIODevice::WriteOnly);
            f.write(contenido);
            f.close();
            return grillas.GuardarImagen(db, tabla, u"logo"_s, u"cod"_s, cod, ruta, id);
        };
        QVERIFY(guardar(u"empresas"_s, bytes.chopped(1)));
        QVERIFY(!guardar(u"empresas"_s, bytes));
        QVERIFY(!guardar(u"empresas; DROP"_s, "otro"));
        QVERIFY(guardar(u"empresas"_s, "otro", u"8"_s)); // another tenant's key: no row
        QCOMPARE(valor(db, u"SELECT logo FROM empresas WHERE cod=?"_s, {cod}).toByteArray(), bytes.chopped(1));
    }

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

QTEST_MAIN(PruebaServicios)
#include "prueba_servicios.moc"
