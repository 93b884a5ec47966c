// The coded lists (categories, positions, SRI documents and supports),
// driven through their controls as a clerk would, the rows checked after.
#include "tests/codificadas_comun.h"

#include "core/Module1.h"

#include <nomencla/clsNomencla.h>

#include <QLineEdit>

using namespace Qt::StringLiterals;
using namespace prueba;
using nomencla::Alfarje;

class PruebaListasCodificadas : public QObject {
    Q_OBJECT
    QSqlDatabase db;
    clsNomencla nomencla;

private Q_SLOTS:
    void init()
    {
        db = baseNueva(u"t_listas_codificadas"_s);
        // Company 2 already numbers its categories; company 1 has none.
        ejecutarSql(db, u"INSERT INTO mCatClie (id,cod,cat,des,est) VALUES ('2',1,'Mayorista','otra empresa',1),"
                        "('2',2,'Minorista','otra empresa',1)"_s);
    }

    // A company's first categories, the length rule, duplicates only for a new
    // record, picks, the tenant's rows alone changed, removal by status.
    void categorias_de_principio_a_fin()
    {
        Cajas cajas;
        bool abiertaNueva = false;
        alAbrir(u"frmLsCategorias"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* tx0 = control<QLineEdit>(d, u"Tx(0)"_s);
            QCOMPARE(d->windowTitle(), u"Categorías de clientes"_s);
            QCOMPARE(gr->RowCount(), 0);
            QCOMPARE(d->focusWidget(), tx0);
            modoNuevo(d, u"CREANDO NUEVA CATEGORIA"_s);
            abiertaNueva = true;

            // One letter between blanks is one character: refused, fields stay.
            escribir(d, u"Tx(0)"_s, u"  A  "_s);
            escribir(d, u"Tx(1)"_s, u"desc"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.vistas.size(), 1);
            QCOMPARE(cajas.vistas[0].titulo, u"Error"_s);
            QCOMPARE(cajas.vistas[0].icono, QMessageBox::Critical);
            QCOMPARE(cajas.vistas[0].texto, u"Debe especificar el nombre de la categoría!"_s);
            QCOMPARE(tx0->text(), u"  A  "_s);
            QCOMPARE(textoDe(d, u"Tx(1)"_s), u"desc"_s);

            // Two characters pass; the first key of the company is 1.
            tx0->clear();
            escribir(d, u"Tx(0)"_s, u" AB "_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.vistas.last().titulo, u"Listo"_s);
            QCOMPARE(cajas.vistas.last().icono, QMessageBox::Information);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado con éxito!"_s);
            QCOMPARE(gr->RowCount(), 1);
            QCOMPARE(tx0->text(), QString());
            QCOMPARE(textoDe(d, u"Tx(1)"_s), QString());
            modoNuevo(d, u"CREANDO NUEVA CATEGORIA"_s);

            escribir(d, u"Tx(0)"_s, u"O'Brien'); --"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(gr->RowCount(), 2);

            // A duplicate of a new record, whatever its case: Tx(0) emptied, Tx(1) kept.
            escribir(d, u"Tx(0)"_s, u"ab"_s);
            escribir(d, u"Tx(1)"_s, u"se queda"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.vistas.last().titulo, u"Aviso"_s);
            QCOMPARE(cajas.vistas.last().icono, QMessageBox::Critical);
            QCOMPARE(cajas.ultima(), u"La categoría ya se encuentra registrada en la lista!"_s);
            QCOMPARE(tx0->text(), QString());
            QCOMPARE(textoDe(d, u"Tx(1)"_s), u"se queda"_s);
            QCOMPARE(d->focusWidget(), tx0);

            // Pick the first row; an existing record may take another's name.
            dobleClic(gr, 0);
            modoExistente(d, u"MODIFICANDO CATEGORIA EXISTENTE"_s);
            QCOMPARE(tx0->text(), u"AB"_s);
            tx0->clear();
            escribir(d, u"Tx(0)"_s, u"O'Brien'); --"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado con éxito!"_s);
            modoNuevo(d, u"CREANDO NUEVA CATEGORIA"_s);
        });
        QVERIFY(nomencla.CategoriaClientes(u"1"_s, db));
        QVERIFY(abiertaNueva);
        QCOMPARE(filas(db, u"SELECT id,cod,cat,des,est FROM mCatClie ORDER BY id,cod"_s),
                 (QStringList{u"1|1|O'Brien'); --|desc|1"_s, u"1|2|O'Brien'); --||1"_s,
                              u"2|1|Mayorista|otra empresa|1"_s, u"2|2|Minorista|otra empresa|1"_s}));
    }

    // The reference check of this company only; No changes nothing; a removed
    // record stays with est 0 and its name can be created again with a new key.
    void categorias_quitar()
    {
        ejecutarSql(db, u"INSERT INTO mCatClie (id,cod,cat,des,est) VALUES ('1',1,'Mayorista','',1),('1',2,'Minorista','',1);\n"
                        "INSERT INTO mCliente (id,cat) VALUES ('1',1),('2',2)"_s);
        Cajas cajas;
        alAbrir(u"frmLsCategorias"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* tx0 = control<QLineEdit>(d, u"Tx(0)"_s);
            // Nothing picked: no removal, no message.
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.vistas.size(), 0);

            dobleClic(gr, 0);
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.vistas.last().titulo, u"AVISO"_s);
            QCOMPARE(cajas.vistas.last().icono, QMessageBox::Warning);
            QCOMPARE(cajas.ultima(), u"No se puede quitar la categoría ''Mayorista'' debido a que se encuentra asignada a uno o mas clientes!"_s);
            modoExistente(d, u"MODIFICANDO CATEGORIA EXISTENTE"_s);
            QCOMPARE(tx0->text(), u"Mayorista"_s);

            // Used only by another company's customer: it can go; No first.
            dobleClic(gr, 1);
            cajas.responder(QMessageBox::No);
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.vistas.last().titulo, u"CONFIRME"_s);
            QVERIFY(cajas.vistas.last().siNo);
            QCOMPARE(cajas.ultima(), u"Está seguro que desea quitar la categoría ''Minorista'' de la base de datos?"_s);
            modoExistente(d, u"MODIFICANDO CATEGORIA EXISTENTE"_s);
            QCOMPARE(gr->RowCount(), 2);

            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.vistas.last().titulo, u"Listo"_s);
            QCOMPARE(cajas.ultima(), u"La operación se realizó correctamente!"_s);
            QCOMPARE(gr->RowCount(), 1);
            QCOMPARE(tx0->text(), QString());
            modoNuevo(d, u"CREANDO NUEVA CATEGORIA"_s);

            escribir(d, u"Tx(0)"_s, u"Minorista"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado con éxito!"_s);
            QCOMPARE(gr->RowCount(), 2);

            // Esc closes it wherever the focus is.
            tecla(gr, Qt::Key_Escape);
            QVERIFY(!d->isVisible());
        });
        QVERIFY(nomencla.CategoriaClientes(u"1"_s, db));
        QVERIFY(!cajas.sinRespuesta);
        QCOMPARE(filas(db, u"SELECT id,cod,cat,est FROM mCatClie ORDER BY id,cod"_s),
                 (QStringList{u"1|1|Mayorista|1"_s, u"1|2|Minorista|0"_s, u"1|3|Minorista|1"_s,
                              u"2|1|Mayorista|1"_s, u"2|2|Minorista|1"_s}));
    }

    // The three members that let the database give the key: their captions,
    // banners, Esc as their key preview says, the field named in the question.
    void familia_data()
    {
        QTest::addColumn<QString>("forma");
        QTest::addColumn<QString>("tabla");
        QTest::addColumn<QString>("columna");
        QTest::addColumn<QString>("titulo");
        QTest::addColumn<QString>("bannerInicial");
        QTest::addColumn<QString>("bannerNuevo");
        QTest::addColumn<QString>("bannerExistente");
        QTest::addColumn<QString>("msgVacio");
        QTest::addColumn<QString>("msgDuplicado");
        QTest::addColumn<QString>("confirmar");
        QTest::addColumn<bool>("escCierra");
        QTest::newRow("cargos") << u"frmLsCargos"_s << u"Cargos"_s << u"car"_s << u"Administración de cargos"_s
                                << u"CREANDO NUEVO CARGO"_s << u"CREANDO NUEVO CARGO"_s << u"MODIFICANDO CARGO EXISTENTE"_s
                                << u"Debe especificar el nombre del cargo!"_s
                                << u"El cargo ya se encuentra registrado en la lista!"_s
                                << u"Está seguro que desea quitar el cargo ''02'' de la base de datos?"_s << false;
        QTest::newRow("documentos") << u"frmLsDocAutSRI"_s << u"SRI_Documentos"_s << u"cin"_s
                                    << u"Documentos autorizados SRI"_s << u"CREANDO NUEVO DUCUMENTO"_s
                                    << u"CREANDO NUEVO DOCUMENTO"_s << u"MODIFICANDO DOCUMENTO EXISTENTE"_s
                                    << u"Debe especificar el nombre del documento autorizado por el SRI!"_s
                                    << u"El tipo de documento ya encuentra registrado en la lista!"_s
                                    << u"Está seguro que desea quitar el documento ''Dos'' de la base de datos?"_s << true;
        QTest::newRow("sustentos") << u"frmLsSustentos"_s << u"SRI_Sustentos"_s << u"cin"_s
                                   << u"Sustentos tributarios SRI"_s << u"CREANDO NUEVO SUSTENTO"_s
                                   << u"CREANDO NUEVO SUSTENTO"_s << u"MODIFICANDO SUSTENTO EXISTENTE"_s
                                   << u"Debe especificar el nombre del sustento tributario autorizado por el SRI!"_s
                                   << u"El tipo de sustento tributario ya encuentra registrado en la lista!"_s
                                   << u"Está seguro que desea quitar el sustento ''Dos'' de la base de datos?"_s << false;
    }

    void familia()
    {
        QFETCH(QString, forma);
        QFETCH(QString, tabla);
        QFETCH(QString, columna);
        QFETCH(QString, titulo);
        QFETCH(QString, bannerInicial);
        QFETCH(QString, bannerNuevo);
        QFETCH(QString, bannerExistente);
        QFETCH(QString, msgVacio);
        QFETCH(QString, msgDuplicado);
        QFETCH(QString, confirmar);
        QFETCH(bool, escCierra);
        // Another company holds the same code and name.
        ejecutarSql(db, u"INSERT INTO %1 (id,%2,des,est) VALUES ('2','01','Uno',1)"_s.arg(tabla, columna));

        Cajas cajas;
        alAbrir(forma, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* tx0 = control<QLineEdit>(d, u"Tx(0)"_s);
            QCOMPARE(d->windowTitle(), titulo);
            QCOMPARE(gr->RowCount(), 0);
            modoNuevo(d, bannerInicial);

            // One character refused, two pass with an empty second text.
            escribir(d, u"Tx(0)"_s, u"1"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.vistas.last().titulo, u"Error"_s);
            QCOMPARE(cajas.ultima(), msgVacio);
            escribir(d, u"Tx(0)"_s, u"1"_s);
            escribir(d, u"Tx(1)"_s, u"Uno"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado con éxito!"_s);
            modoNuevo(d, bannerNuevo);
            escribir(d, u"Tx(0)"_s, u"02"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(gr->RowCount(), 2);

            escribir(d, u"Tx(0)"_s, u"11"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), msgDuplicado);
            QCOMPARE(cajas.vistas.last().titulo, u"Aviso"_s);

            // Pick "02", name it, remove it.
            escribir(d, u"Tx(0)"_s, u"02"_s);
            dobleClic(gr, gr->Row());
            modoExistente(d, bannerExistente);
            escribir(d, u"Tx(1)"_s, u"Dos"_s);
            pulsar(d, u"Bt(0)"_s);
            escribir(d, u"Tx(0)"_s, u"02"_s);
            dobleClic(gr, gr->Row());
            QCOMPARE(textoDe(d, u"Tx(1)"_s), u"Dos"_s);
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.vistas[cajas.vistas.size() - 2].texto, confirmar);
            QCOMPARE(cajas.ultima(), u"La operación se realizó correctamente!"_s);
            QCOMPARE(gr->RowCount(), 1);

            // Esc in a text box, as the form's key preview says; Salir always.
            tecla(tx0, Qt::Key_Escape);
            QCOMPARE(d->isVisible(), !escCierra);
            if (d->isVisible())
                pulsar(d, u"Bt(3)"_s);
            QVERIFY(!d->isVisible());
        });
        bool hubo = false;
        if (forma == u"frmLsCargos"_s)
            hubo = nomencla.Cargos(u"1"_s, db);
        else if (forma == u"frmLsDocAutSRI"_s)
            hubo = nomencla.DocumentAutorizSRI(u"1"_s, db);
        else
            hubo = nomencla.SustentoTributario(u"1"_s, db);
        QVERIFY(hubo);
        QCOMPARE(filas(db, u"SELECT id,%2,des,est FROM %1 ORDER BY cod"_s.arg(tabla, columna)),
                 (QStringList{u"2|01|Uno|1"_s, u"1|11|Uno|1"_s, u"1|02|Dos|0"_s}));
    }

    // Positions used by an employee of this company stay.
    void cargos_en_uso()
    {
        ejecutarSql(db, u"INSERT INTO Cargos (id,car,des,est) VALUES ('1','Vendedor','',1);\n"
                        "INSERT INTO mvendedor (id,car) SELECT '1', cod FROM Cargos WHERE car='Vendedor'"_s);
        Cajas cajas;
        alAbrir(u"frmLsCargos"_s, [&](QWidget* d) {
            dobleClic(control<Alfarje>(d, u"GR"_s), 0);
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.ultima(), u"No se puede quitar el cargo ''Vendedor'' debido a que se encuentra asignado a uno o mas empleados!"_s);
            modoExistente(d, u"MODIFICANDO CARGO EXISTENTE"_s);
        });
        QVERIFY(!nomencla.Cargos(u"1"_s, db));
        QCOMPARE(valor(db, u"SELECT est FROM Cargos"_s).toInt(), 1);
    }

    // A failed save writes nothing, keeps the mode and the fields, and a
    // second try after the failure gives the key that was missing.
    void fallo_al_guardar()
    {
        QSqlDatabase otra = otraConexion(db, u"otra"_s);
        Cajas cajas;
        alAbrir(u"frmLsCategorias"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            ejecutarSql(otra, u"RENAME TABLE mCatClie TO mCatClieFuera"_s);
            escribir(d, u"Tx(0)"_s, u"Frecuente"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.vistas.last().titulo, u"Error de base de datos"_s);
            QCOMPARE(textoDe(d, u"Tx(0)"_s), u"Frecuente"_s);
            modoNuevo(d, u"CREANDO NUEVA CATEGORIA"_s);
            QVERIFY(!nomencla::M().HuboCambios);
            ejecutarSql(otra, u"RENAME TABLE mCatClieFuera TO mCatClie"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado con éxito!"_s);
            QCOMPARE(gr->RowCount(), 1);
        });
        QVERIFY(nomencla.CategoriaClientes(u"1"_s, db));
        QCOMPARE(valor(db, u"SELECT cod FROM mCatClie WHERE id='1' AND cat='Frecuente'"_s).toInt(), 1);
    }
};

QTEST_MAIN(PruebaListasCodificadas)
#include "prueba_listas_codificadas.moc"
