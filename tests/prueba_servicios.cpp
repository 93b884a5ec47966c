// The services against the private server: single values, keys, key filter,
// value-to-label expressions, grid filling and image storage.
#include "tests/support/Prueba.h"

#include "core/Alfarje.h"
#include "core/BaseDatos.h"
#include "core/Controles.h"
#include "core/clsGrillas.h"
#include "core/clsServicios.h"

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

    // MAX over no rows is Null, so a tenant's first key is 1; then 2; a
    // duplicate key (another clerk) is retried, never shown.
    void claves_siguientes()
    {
        const QString maximo = u"SELECT MAX(cod) AS mco FROM mCatClie where  id=?"_s;
        QVERIFY(servicios.ConsultarValor(db, maximo, {u"9"_s}).isNull());
        auto insertar = [&](qint32 clave) {
            ejecutar(db, u"INSERT INTO mCatClie (id,cod,cat,des,est) VALUES (?,?,?,?,1)"_s,
                     {u"9"_s, clave, u"A"_s, QString()});
        };
        QCOMPARE(insertarConClaveSiguiente(db, maximo, {u"9"_s}, insertar), 1);
        QCOMPARE(insertarConClaveSiguiente(db, maximo, {u"9"_s}, insertar), 2);
        // Another tenant numbers its own keys from 1.
        QCOMPARE(insertarConClaveSiguiente(db, maximo, {u"8"_s},
                                           [&](qint32 clave) {
                                               ejecutar(db, u"INSERT INTO mCatClie (id,cod,cat,des,est) VALUES (?,?,?,?,1)"_s,
                                                        {u"8"_s, clave, u"B"_s, QString()});
                                           }),
                 1);
        // The first attempt collides as if another clerk took key 3 between the MAX and the insert.
        int intentos = 0;
        const qint32 clave = insertarConClaveSiguiente(db, maximo, {u"9"_s}, [&](qint32 k) {
            if (++intentos == 1)
                ejecutar(db, u"INSERT INTO mCatClie (id,cod,cat,des,est) VALUES ('9',?, 'otro', '', 1)"_s, {k});
            insertar(k);
        });
        QCOMPARE(intentos, 2);
        QCOMPARE(clave, 4);
        // Other failures are not retried.
        QVERIFY_THROWS_EXCEPTION(ErrorBD, insertarConClaveSiguiente(db, maximo, {u"9"_s}, [&](qint32) {
            ejecutar(db, u"INSERT INTO noExiste VALUES (1)"_s);
        }));
    }

    void filtro_de_teclas_data()
    {
        QTest::addColumn<QString>("texto");
        QTest::addColumn<QChar>("tecla");
        QTest::addColumn<int>("decimales");
        QTest::addColumn<int>("digitos");
        QTest::addColumn<int>("resultado");
        QTest::newRow("digit") << u"12"_s << QChar(u'3') << 2 << 5 << int('3');
        QTest::newRow("letter") << u"12"_s << QChar(u'a') << 2 << 5 << 0;
        QTest::newRow("point") << u"12"_s << QChar(u'.') << 2 << 5 << int('.');
        QTest::newRow("comma is the point") << u"12"_s << QChar(u',') << 2 << 5 << int('.');
        QTest::newRow("no decimals allowed") << u"12"_s << QChar(u'.') << 0 << 6 << 0;
        QTest::newRow("second point") << u"1.2"_s << QChar(u'.') << 2 << 5 << 0;
        QTest::newRow("third decimal") << u"1.25"_s << QChar(u'5') << 2 << 5 << 0;
        QTest::newRow("too many digits") << u"123456"_s << QChar(u'7') << 0 << 6 << 0;
        QTest::newRow("backspace passes") << u"123456"_s << QChar(8) << 0 << 6 << 8;
        QTest::newRow("enter passes") << u"1"_s << QChar(13) << 0 << 6 << 13;
        QTest::newRow("minus refused") << u""_s << QChar(u'-') << 2 << 6 << 0;
    }

    void filtro_de_teclas()
    {
        QFETCH(QString, texto);
        QFETCH(QChar, tecla);
        QFETCH(int, decimales);
        QFETCH(int, digitos);
        QFETCH(int, resultado);
        CajaTexto caja;
        caja.setText(texto);
        caja.setCursorPosition(int(texto.size()));
        QCOMPARE(servicios.FiltrarTecla(&caja, tecla.unicode(), decimales, 0, digitos, 0), resultado);
    }

    // The filter wired to a box: only the allowed keys reach it.
    void filtro_en_una_caja()
    {
        CajaTexto caja;
        QObject::connect(&caja, &CajaTexto::KeyPress, &caja,
                         [&](int& k) { k = servicios.FiltrarTecla(&caja, k, 2, 0, 6, 0); });
        teclear(&caja, u"12a,5x67"_s);
        QCOMPARE(caja.text(), u"12.56"_s);
    }

    void expresion_caso()
    {
        ejecutarSql(db, u"INSERT INTO empresas (id,emp,act,est) VALUES ('1','Uno',1,1),('1','Dos',8,1),('1','Tres',9,1)"_s);
        const ExpresionSql e = servicios.ExpresionCaso(u"act"_s, u"0,1,2,3,4,5,6,7,8"_s,
            u"Comercio General,Farmacia,Gasolinera,Hotel,Catering,Venta con tickets,Servicios profesionales,Talleres y reparaciones,Transporte público"_s);
        QVariantList valores = e.valores;
        valores << u"1"_s;
        QCOMPARE(filas(db, u"SELECT emp,"_s + e.texto + u" AS activ FROM Empresas WHERE  id=? ORDER BY cod"_s, valores),
                 (QStringList{u"Uno|Farmacia"_s, u"Dos|Transporte público"_s, u"Tres|9"_s}));
    }

    // Fields matched ignoring case, Nulls as empty cells, missing fields as
    // empty cells, more fields than columns kept; the grid emptied first.
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
        QVERIFY(gr.isColumnHidden(2));
        // No rows: an empty grid and no error.
        grillas.LlenarGrilla(db, &gr, u"SELECT tip FROM mTipClie WHERE id=?"_s, {u"nadie"_s}, u"tip"_s);
        QCOMPARE(gr.RowCount(), 0);
        // A broken statement throws and leaves the grid empty.
        gr.AddItem(u"x"_s);
        QVERIFY_THROWS_EXCEPTION(ErrorBD, grillas.LlenarGrilla(db, &gr, u"SELECT nada FROM mTipClie"_s, {}, u"nada"_s));
        QCOMPARE(gr.RowCount(), 0);
    }

    void llenar_combo()
    {
        QComboBox combo;
        combo.addItem(u"viejo"_s);
        servicios.LlenarCombo(db, u"SELECT emp, cod FROM empresas WHERE id=? ORDER BY emp"_s, {u"1"_s}, &combo,
                              u"emp"_s, u"cod"_s);
        QCOMPARE(combo.count(), 3);
        QCOMPARE(combo.currentIndex(), 0);
        QCOMPARE(combo.currentText(), u"Dos"_s);
        QVERIFY(combo.itemData(0).toInt() > 0);
        servicios.LlenarCombo(db, u"SELECT emp FROM empresas WHERE id=?"_s, {u"nadie"_s}, &combo, u"emp"_s, QString());
        QCOMPARE(combo.count(), 0);
        QCOMPARE(combo.currentIndex(), -1);
    }

    void guardar_imagen()
    {
        ejecutarSql(db, u"INSERT INTO empresas (id,emp,est) VALUES ('7','Con logo',1),('8','Ajena',1)"_s);
        const int cod = valor(db, u"SELECT cod FROM empresas WHERE id='7'"_s).toInt();
        QTemporaryDir dir;
        QByteArray bytes;
        for (int i = 0; i < 70000; ++i)
            bytes.append(char(i * 7));
        QFile f(dir.filePath(u"logo.png"_s));
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write(bytes);
        f.close();
        QVERIFY(grillas.GuardarImagen(db, u"empresas"_s, u"logo"_s, u"cod"_s, cod, f.fileName(), u"7"_s));
        QCOMPARE(valor(db, u"SELECT logo FROM empresas WHERE cod=?"_s, {cod}).toByteArray(), bytes);
        // Another tenant's key is not reached.
        QVERIFY(grillas.GuardarImagen(db, u"empresas"_s, u"logo"_s, u"cod"_s, cod, f.fileName(), u"8"_s));
        QCOMPARE(valor(db, u"SELECT COUNT(*) FROM empresas WHERE logo IS NOT NULL"_s).toInt(), 1);
        QVERIFY(!grillas.GuardarImagen(db, u"empresas"_s, u"logo"_s, u"cod"_s, cod, dir.filePath(u"no.png"_s)));
        QVERIFY(!grillas.GuardarImagen(db, u"empresas; DROP"_s, u"logo"_s, u"cod"_s, cod, f.fileName()));
    }

    void fechas()
    {
        QCOMPARE(servicios.FechaSql(u"2026-02-03"_s), u"2026-02-03"_s);
        QCOMPARE(servicios.FechaSql(u"03/02/2026"_s), u"2026-02-03"_s);
        const QDate d(2026, 2, 3);
        const QLocale es(QLocale::Spanish, QLocale::Ecuador);
        QCOMPARE(servicios.FechaSql(es.toString(d, u"ddd. dd-MMM-yyyy"_s)), u"2026-02-03"_s);
        QCOMPARE(servicios.FechaSql(es.toString(d, u"dd-MMM-yyyy"_s)), u"2026-02-03"_s);
        QCOMPARE(servicios.FechaSql(u"no es fecha"_s), QString());
    }

    // A transaction not confirmed leaves nothing.
    void transaccion()
    {
        {
            Transaccion t(db);
            ejecutar(db, u"INSERT INTO lsCiudades (id,ciu) VALUES ('t','Nada')"_s);
        }
        QCOMPARE(valor(db, u"SELECT COUNT(*) FROM lsCiudades WHERE id='t'"_s).toInt(), 0);
        {
            Transaccion t(db);
            ejecutar(db, u"INSERT INTO lsCiudades (id,ciu) VALUES ('t','Algo')"_s);
            t.confirmar();
        }
        QCOMPARE(valor(db, u"SELECT COUNT(*) FROM lsCiudades WHERE id='t'"_s).toInt(), 1);
    }
};

QTEST_MAIN(PruebaServicios)
#include "prueba_servicios.moc"
