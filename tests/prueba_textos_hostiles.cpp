// Hostile text typed or pasted into the boxes: stored and read back exactly
// (trimmed, control characters as blanks, cut at the box's length), and no
// other row changes.
#include "tests/support/Prueba.h"

#include "core/Alfarje.h"

#include <nomencla/clsNomencla.h>

#include <QComboBox>
#include <QLineEdit>
#include <QRegularExpression>
#include <QPlainTextEdit>

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
        {u"%%"_s, u"%%"_s},
        {u"__"_s, u"__"_s},
    };
    return lista;
}

// What a box keeps of a paste: one-line boxes turn control characters into
// blanks; all cut at the limit, never half a character; the dialog trims.
QString guardable(QString t, int largo, bool varias)
{
    if (!varias)
        for (QChar& c : t)
            if (c.category() == QChar::Other_Control)
                c = u' ';
    t.truncate(largo);
    if (!t.isEmpty() && t.back().isHighSurrogate())
        t.chop(1);
    return t.trimmed();
}

struct Caja {
    QString nombre;
    QString columna;
    int largo;
    bool varias = false;
    int minimo = -1; // shorter is refused; -1: the dialog's
};

struct Dialogo {
    QString forma;
    std::function<bool(clsNomencla&, const QString&, QSqlDatabase&)> abrir;
    QString tabla, clave, previas; // previas: rows of both tenants there before
    QString listo;                 // the message of a save
    int minimo;                    // shorter (trimmed) is refused
    QString corto;                 // with this message ("": silently)
    QList<Caja> cajas;
    std::function<void(QWidget*)> preparar = {}; // before each save, after the boxes
};

struct Cuenta {
    int dialogos = 0, cajas = 0, entradas = 0, filas = 0;
} cuenta;

// Every input pasted into every box of the dialog (the other boxes filled
// with plain text), saved, and the new row read back; older rows unchanged.
void probar(QSqlDatabase& db, const Dialogo& dlg)
{
    ejecutarSql(db, dlg.previas);
    const QString antes = u"SELECT * FROM %1 ORDER BY %2"_s.arg(dlg.tabla, dlg.clave);
    const QStringList viejas = filas(db, antes);
    const QString cuantas = u"SELECT COUNT(*) FROM "_s + dlg.tabla;
    Cajas cajas;
    int relleno = 0;
    alAbrir(dlg.forma, [&](QWidget* d) {
        for (const Caja& caja : dlg.cajas) {
            QList<Entrada> lista = entradas();
            lista << Entrada{QString(caja.largo, u'y') + u"z"_s, {}}
                  << Entrada{QString(caja.largo - 1, u'x') + u"😀"_s, {}};
            for (const Entrada& e : lista) {
                for (const Caja& otra : dlg.cajas)
                    control<QWidget>(d, otra.nombre)->setProperty("text", u"r%1"_s.arg(++relleno, 2, 10, QChar(u'0')));
                if (dlg.preparar)
                    dlg.preparar(d);
                QWidget* w = control<QWidget>(d, caja.nombre);
                w->setProperty("text", QString());
                if (auto* le = qobject_cast<QLineEdit*>(w))
                    le->insert(e.pegado);
                else
                    qobject_cast<QPlainTextEdit*>(w)->insertPlainText(e.pegado);
                const QString esperado = guardable(e.pegado, caja.largo, caja.varias);
                const int n = valor(db, cuantas).toInt();
                cajas.limpiar();
                pulsar(d, u"Bt(0)"_s);
                ++cuenta.entradas;
                if (esperado.size() < (caja.minimo >= 0 ? caja.minimo : std::max(dlg.minimo, 1))) {
                    QCOMPARE(cajas.ultima(), dlg.corto);
                    QCOMPARE(valor(db, cuantas).toInt(), n);
                    continue;
                }
                QCOMPARE(cajas.ultima(), dlg.listo);
                QCOMPARE(valor(db, cuantas).toInt(), n + 1);
                const QString leido = valor(db, u"SELECT %1 FROM %2 WHERE id='1' ORDER BY %3 DESC LIMIT 1"_s.arg(
                                                    caja.columna, dlg.tabla, dlg.clave))
                                          .toString();
                QCOMPARE(leido, esperado);
                ++cuenta.filas;
            }
            ++cuenta.cajas;
        }
    });
    clsNomencla nomencla;
    QVERIFY(dlg.abrir(nomencla, u"1"_s, db));
    QCOMPARE(filas(db, antes).mid(0, viejas.size()), viejas);
    cuenta.filas += int(viejas.size());
    ++cuenta.dialogos;
}

const QList<Dialogo>& listas()
{
    const QString bien = u"La información se ha guardado correctamente!"_s;
    const QString exito = u"La información se ha guardado con éxito!"_s;
    const QString ajena = u"('2','O''Brien'),('1','Zzyzx')"_s;
    const QString incompleta = u"Debe ingresar toda la información antes de guardar!"_s;
    static const QList<Dialogo> lista{
        {u"frmLsDepartam"_s, &clsNomencla::Departamentos, u"lsDepartam"_s, u"pk"_s,
         u"INSERT INTO lsDepartam (id,depa) VALUES "_s + ajena, bien, 1,
         u"Debe especificar el nombre del departamento!"_s, {{u"Text1"_s, u"depa"_s, 25}}},
        {u"frmLsContenido"_s, &clsNomencla::Contenidos, u"lsContenidos"_s, u"cod"_s,
         u"INSERT INTO lsContenidos (id,nom) VALUES "_s + ajena, bien, 1, u"Debe especificar el nombre del objeto!"_s,
         {{u"Text1"_s, u"nom"_s, 25}}},
        {u"frmMedidas"_s, &clsNomencla::Medidas, u"aMedidas"_s, u"pk"_s,
         u"INSERT INTO aMedidas (id,med,abr) VALUES ('2','O''Brien','o'),('1','Zzyzx','z')"_s, bien, 1,
         u"Debe especificar el nombre y la abreviación de la medida/presentacion!"_s,
         {{u"Text1"_s, u"med"_s, 20}, {u"Text2"_s, u"abr"_s, 10}}},
        {u"frmLsCategorias"_s, &clsNomencla::CategoriaClientes, u"mCatClie"_s, u"pk"_s,
         u"INSERT INTO mCatClie (id,cod,cat,des) VALUES ('2',1,'O''Brien','x'),('1',1,'Zzyzx','z')"_s, exito, 2,
         u"Debe especificar el nombre de la categoría!"_s,
         {{u"Tx(0)"_s, u"cat"_s, 50}, {u"Tx(1)"_s, u"des"_s, 150, true}}},
        {u"frmLsDocAutSRI"_s, &clsNomencla::DocumentAutorizSRI, u"SRI_Documentos"_s, u"cod"_s,
         u"INSERT INTO SRI_Documentos (id,cin,des) VALUES ('2','01','O''Brien'),('1','Zzy','z')"_s, exito, 2,
         u"Debe especificar el nombre del documento autorizado por el SRI!"_s,
         {{u"Tx(0)"_s, u"cin"_s, 3}, {u"Tx(1)"_s, u"des"_s, 30}}},
        {u"frmLsSustentos"_s, &clsNomencla::SustentoTributario, u"SRI_Sustentos"_s, u"cod"_s,
         u"INSERT INTO SRI_Sustentos (id,cin,des) VALUES ('2','01','O''Brien'),('1','Zzy','z')"_s, exito, 2,
         u"Debe especificar el nombre del sustento tributario autorizado por el SRI!"_s,
         {{u"Tx(0)"_s, u"cin"_s, 3}, {u"Tx(1)"_s, u"des"_s, 150}}},
        {u"frmLsCargos"_s, &clsNomencla::Cargos, u"Cargos"_s, u"cod"_s,
         u"INSERT INTO Cargos (id,car,des) VALUES ('2','O''Brien','x'),('1','Zzyzx','z')"_s, exito, 2,
         u"Debe especificar el nombre del cargo!"_s,
         {{u"Tx(0)"_s, u"car"_s, 50}, {u"Tx(1)"_s, u"des"_s, 150, true}}},
        {u"frmLsTipoCli"_s, &clsNomencla::TipoClientes, u"mTipClie"_s, u"pk"_s,
         u"INSERT INTO mTipClie (id,cod,tip,des) VALUES ('2',1,'O''Brien','x'),('1',1,'Zzyzx','z')"_s, exito, 2,
         u"Debe especificar el nombre del tipo de cliente!"_s,
         {{u"Tx(0)"_s, u"tip"_s, 50}, {u"Tx(1)"_s, u"des"_s, 150, true}}},
        {u"frmLsZona"_s, &clsNomencla::ZonaClientes, u"mZonaClie"_s, u"pk"_s,
         u"INSERT INTO mZonaClie (id,cod,zon,des) VALUES ('2',1,'O''Brien','x'),('1',1,'Zzyzx','z')"_s, exito, 2,
         u"Debe especificar el nombre de la zona!"_s,
         {{u"Tx(0)"_s, u"zon"_s, 50}, {u"Tx(1)"_s, u"des"_s, 150, true}}},
        {u"frmLsContratos"_s, &clsNomencla::Contratos, u"lscontratos"_s, u"cod"_s,
         u"INSERT INTO lscontratos (id,con) VALUES "_s + ajena, exito, 2, {}, {{u"Text1"_s, u"con"_s, 60}}},
        {u"frmLsCuentas"_s, &clsNomencla::Cuentas, u"lsCuentas"_s, u"cod"_s,
         u"INSERT INTO lsCuentas (id,cta) VALUES "_s + ajena, exito, 2, {}, {{u"Text1"_s, u"cta"_s, 60}}},
        {u"frmLsPaises"_s, &clsNomencla::Paises, u"lsPaises"_s, u"cod"_s,
         u"INSERT INTO lsPaises (id,nom) VALUES "_s + ajena, exito, 6, {}, {{u"Text1"_s, u"nom"_s, 60}}},
        {u"frmLsBancos"_s, &clsNomencla::Bancos, u"lsBancos"_s, u"cod"_s,
         u"INSERT INTO lsBancos (id,nom) VALUES "_s + ajena, exito, 6, {}, {{u"Text1"_s, u"nom"_s, 60}}},
        {u"frmEmpresas"_s, &clsNomencla::Empresas, u"empresas"_s, u"cod"_s,
         u"INSERT INTO empresas (id,emp,dir,tel,ciu,prov,nart) VALUES ('2','O''Brien','d','1','c','p','n'),"
         "('1','Zzyzx','d','1','c','p','n')"_s,
         exito, 1, incompleta,
         {{u"Tx(0)"_s, u"emp"_s, 120}, {u"Tx(2)"_s, u"dir"_s, 120}, {u"Tx(3)"_s, u"tel"_s, 12},
          {u"Tx(4)"_s, u"ciu"_s, 25}, {u"Tx(5)"_s, u"prov"_s, 50}, {u"Tx(6)"_s, u"nart"_s, 25, false, 0}}},
        {u"frmSucursales"_s, &clsNomencla::Sucursales, u"Sucursales"_s, u"cod"_s,
         u"INSERT INTO empresas (id,emp,est) VALUES ('1','Andina',1);\n"
         "INSERT INTO Sucursales (id,emp,ciu,nom,dir,tel) VALUES ('2','Andina','Quito','O''Brien','d','1'),"
         "('1','Andina','Quito','Zzyzx','d','1')"_s,
         exito, 1, incompleta,
         {{u"Tx(0)"_s, u"ciu"_s, 25}, {u"Tx(1)"_s, u"nom"_s, 60}, {u"Tx(2)"_s, u"dir"_s, 100},
          {u"Tx(3)"_s, u"tel"_s, 10, false, 0}},
         [](QWidget* d) { control<QComboBox>(d, u"Cmb"_s)->setCurrentIndex(0); }},
        {u"frmSubProveedor"_s,
         [](clsNomencla& n, const QString& id, QSqlDatabase& db) { return n.SubProveedores(id, 7, db); },
         u"SubProveedor"_s, u"cod"_s,
         u"INSERT INTO mProveedor (cod,nom,ced) VALUES (7,'Distribuidora','1790000000001');\n"
         "INSERT INTO SubProveedor (id,prov,cin,ruc,raz,dir) VALUES ('2',7,'1','O''Brien','r','d'),"
         "('1',7,'1','Zzyzx','r','d')"_s,
         exito, 1, incompleta,
         {{u"Tx(0)"_s, u"cin"_s, 13}, {u"Tx(1)"_s, u"ruc"_s, 13}, {u"Tx(2)"_s, u"raz"_s, 100},
          {u"Tx(3)"_s, u"dir"_s, 100, false, 0}}},
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
            esperado << guardable(e.pegado, 25, false);
        esperado.removeAll(QString()); // nothing to save
        QCOMPARE(enGrilla, esperado);
        esperado.removeAll(u"'); DROP TABLE x; --"_s);
        QStringList guardado = filas(db, u"SELECT ciu FROM lsCiudades WHERE id='1' ORDER BY pk"_s);
        QCOMPARE(guardado, esperado);
        QCOMPARE(filas(db, u"SELECT * FROM lsCiudades WHERE id='2' ORDER BY pk"_s), otroAntes);
        cuenta.entradas += int(entradas().size());
        cuenta.filas += int(guardado.size() + otroAntes.size());
        ++cuenta.cajas;
        ++cuenta.dialogos;
    }

    void en_cada_caja_de_cada_lista_data()
    {
        QTest::addColumn<int>("indice");
        for (int i = 0; i < int(listas().size()); ++i)
            QTest::newRow(qPrintable(listas()[i].forma + QString::number(i))) << i;
    }

    void en_cada_caja_de_cada_lista()
    {
        QFETCH(int, indice);
        QSqlDatabase db = baseNueva(u"t_hostiles"_s);
        probar(db, listas()[indice]);
    }

    // A place of a stored zone is written at Enter in its ordinal; a rename
    // carries the same text to this tenant's customers of the place.
    void en_los_lugares_de_una_zona()
    {
        QSqlDatabase db = baseNueva(u"t_hostiles"_s);
        ejecutarSql(db, u"INSERT INTO mZonaClie (id,cod,zon) VALUES ('1',1,'Norte'),('2',1,'Norte');\n"
                        "INSERT INTO mZonaLugar (id,zon,lug) VALUES ('2',1,'O''Brien'),('1',1,'Carcelén');\n"
                        "INSERT INTO mCliente (id,nom,zon,lug) VALUES ('1','A',1,'Carcelén'),('2','B',1,'Carcelén')"_s);
        const QString ajenas = u"SELECT * FROM %1 WHERE id='2' ORDER BY cod"_s;
        const QStringList lugaresAjenos = filas(db, ajenas.arg(u"mZonaLugar"_s));
        const QStringList clientesAjenos = filas(db, ajenas.arg(u"mCliente"_s));
        const QString renombre = u"'); UPDATE mCliente SET lug='x'; --"_s;
        Cajas cajas;
        alAbrir(u"frmLsZona"_s, [&](QWidget* d) {
            d->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(d));
            auto* gr = control<Alfarje>(d, u"GR"_s);
            QTest::mouseDClick(gr->viewport(), Qt::LeftButton, {}, gr->visualRect(gr->model()->index(0, 0)).center());
            auto* nombre = control<QLineEdit>(d, u"Tx(2)"_s);
            auto* ordinal = control<QLineEdit>(d, u"Tx(3)"_s);
            for (const Entrada& e : entradas()) {
                nombre->clear();
                nombre->insert(e.pegado);
                cajas.limpiar();
                tecla(ordinal, Qt::Key_Return);
                ++cuenta.entradas;
                const QString esperado = guardable(e.pegado, 50, false);
                if (esperado.size() <= 1) {
                    QCOMPARE(cajas.ultima(), u"Debe especificar el nombre del lugar!"_s);
                    continue;
                }
                QCOMPARE(cajas.ultima(), u"El lugar asociado a la zona se ha registrado en la base de datos!"_s);
                QCOMPARE(valor(db, u"SELECT lug FROM mZonaLugar WHERE id='1' ORDER BY cod DESC LIMIT 1"_s).toString(),
                         esperado);
                ++cuenta.filas;
            }
            // The rename, picked in the places as the user does.
            d->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(d));
            auto* gr2 = control<Alfarje>(d, u"GR2"_s);
            const int fila = gr2->FindRow(u"Carcelén"_s, 0, 0, false);
            QVERIFY(fila >= 0);
            QTest::mouseClick(gr2->viewport(), Qt::LeftButton, {},
                              gr2->visualRect(gr2->model()->index(fila, 0)).center());
            QCOMPARE(nombre->text(), u"Carcelén"_s);
            nombre->selectAll(); // pasted over the name: emptying the box would drop the pick
            nombre->insert(renombre);
            tecla(ordinal, Qt::Key_Return);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado con éxito en la base de datos!"_s);
        });
        clsNomencla nomencla;
        QVERIFY(nomencla.ZonaClientes(u"1"_s, db));
        QCOMPARE(filas(db, u"SELECT lug FROM mCliente WHERE id='1'"_s), QStringList{renombre});
        QCOMPARE(valor(db, u"SELECT COUNT(*) FROM mZonaLugar WHERE id='1' AND lug=?"_s, {renombre}).toInt(), 1);
        QCOMPARE(filas(db, ajenas.arg(u"mZonaLugar"_s)), lugaresAjenos);
        QCOMPARE(filas(db, ajenas.arg(u"mCliente"_s)), clientesAjenos);
        cuenta.filas += int(lugaresAjenos.size() + clientesAjenos.size()) + 2;
        cuenta.cajas += 1;
        ++cuenta.dialogos;
    }

    // Boxes for numbers don't take text that isn't one, pasted or not; a
    // number pasted with a comma is read with the decimal point.
    void en_las_cajas_de_numeros()
    {
        QSqlDatabase db = baseNueva(u"t_hostiles"_s);
        ejecutarSql(db, u"INSERT INTO lsPaises (id,nom) VALUES ('1','Ecuador')"_s);
        const auto rechaza = [](QWidget* d, const QString& nombre) {
            auto* caja = control<QLineEdit>(d, nombre);
            for (const Entrada& e : entradas()) {
                caja->setText(u"7"_s);
                caja->selectAll();
                caja->insert(e.pegado);
                // The box cuts at its length first: what is left may be a number.
                const QString cortado = e.pegado.left(caja->maxLength());
                const bool numero = QRegularExpression(u"^\\s*\\d*\\s*$"_s).match(cortado).hasMatch();
                QCOMPARE(caja->text(), numero ? cortado : u"7"_s);
                ++cuenta.entradas;
            }
            ++cuenta.cajas;
        };
        Cajas cajas;
        clsNomencla nomencla;
        alAbrir(u"frmLsTipoCli"_s, [&](QWidget* d) {
            for (const QString& nombre : {u"Tx(2)"_s, u"Tx(3)"_s, u"Tx(4)"_s})
                rechaza(d, nombre);
            control<QLineEdit>(d, u"Tx(0)"_s)->setText(u"Mayorista"_s);
            control<QLineEdit>(d, u"Tx(4)"_s)->selectAll();
            control<QLineEdit>(d, u"Tx(4)"_s)->insert(u" 12,5 "_s);
            QCOMPARE(control<QLineEdit>(d, u"Tx(4)"_s)->text(), u" 12.5 "_s);
            control<QLineEdit>(d, u"Tx(3)"_s)->selectAll();
            control<QLineEdit>(d, u"Tx(3)"_s)->insert(u"12,5"_s); // days: no decimals
            QCOMPARE(control<QLineEdit>(d, u"Tx(3)"_s)->text(), u"7"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado con éxito!"_s);
        });
        QVERIFY(nomencla.TipoClientes(u"1"_s, db));
        QCOMPARE(filas(db, u"SELECT tip,cre,pla,descu FROM mTipClie"_s), QStringList{u"Mayorista|7|7|12.5"_s});
        alAbrir(u"frmLsBancos"_s, [&](QWidget* d) {
            rechaza(d, u"Nm(0)"_s);
            rechaza(d, u"Nm(1)"_s);
        });
        nomencla.Bancos(u"1"_s, db);
        alAbrir(u"frmLsZona"_s, [&](QWidget* d) { rechaza(d, u"Tx(3)"_s); });
        nomencla.ZonaClientes(u"1"_s, db);
        alAbrir(u"frmLotes"_s, [&](QWidget* d) { rechaza(d, u"Text1(2)"_s); });
        InfoLotes r;
        nomencla.AgregarLoteCaducidad(u"1"_s, db, r);
        cuenta.dialogos += 4;
        ++cuenta.filas;
    }

    // The lot and its sanitary registration come back exactly.
    void en_la_captura_de_lotes()
    {
        QSqlDatabase db = baseNueva(u"t_hostiles"_s);
        ejecutarSql(db, u"INSERT INTO lsPaises (id,nom) VALUES ('1','Ecuador')"_s);
        clsNomencla nomencla;
        for (const Entrada& e : entradas()) {
            Cajas cajas;
            alAbrir(u"frmLotes"_s, [&](QWidget* d) {
                control<QLineEdit>(d, u"Text1(0)"_s)->insert(e.pegado);
                control<QLineEdit>(d, u"Text1(1)"_s)->insert(e.pegado);
                pulsar(d, u"Bt(1)"_s);
            });
            InfoLotes r;
            const QString lote = guardable(e.pegado, 15, false);
            QCOMPARE(nomencla.AgregarLoteCaducidad(u"1"_s, db, r), !lote.isEmpty());
            ++cuenta.entradas;
            if (lote.isEmpty()) {
                QVERIFY(cajas.ultima().startsWith(u"Debe especificar el lote"_s));
                continue;
            }
            QCOMPARE(r.Lote, lote);
            QCOMPARE(r.RegistroSanitario, guardable(e.pegado, 20, false));
        }
        cuenta.cajas += 2;
        ++cuenta.dialogos;
    }

    void cleanupTestCase()
    {
        qInfo("dialogs %d, boxes %d, inputs %d, rows compared %d", cuenta.dialogos, cuenta.cajas, cuenta.entradas,
              cuenta.filas);
    }
};

QTEST_MAIN(PruebaTextosHostiles)
#include "prueba_textos_hostiles.moc"
