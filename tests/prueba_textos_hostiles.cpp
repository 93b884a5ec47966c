// Hostile text pasted into the boxes: stored and read back exactly (trimmed,
// control characters as blanks, cut at the box's length), and no other row
// changes; boxes for numbers take only numbers.
#include "tests/edicion.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRegularExpression>

using namespace Qt::StringLiterals;
using namespace prueba;

namespace {

const QStringList entradas{u"O'Brien"_s,
                           u"''"_s,
                           u"\\' OR 1=1 --"_s,
                           u"C:\\temp\\"_s,
                           u"\"comillas\""_s,
                           u"100% _x_"_s,
                           u"'); DROP TABLE x; --"_s,
                           u"Ca\u0301ceres"_s,
                           u"Macas 😀"_s,
                           u"a\tb\nc"_s,
                           u"   Lago Agrio   "_s,
                           u"Santo Domingo de los Tsáchilas y más"_s,
                           u"\u0000nul"_s,
                           u"%%"_s,
                           u"__"_s};

// What a box keeps of a paste: one-line boxes turn control characters into
// blanks; all cut at the limit in characters (an emoji is one, never cut in
// half); the dialog trims.
QString guardable(QString t, int largo, bool varias)
{
    if (!varias)
        for (QChar& c : t)
            if (c.category() == QChar::Other_Control)
                c = u' ';
    qsizetype i = 0;
    for (int n = 0; i < t.size() && n < largo; ++n)
        i += t[i].isHighSurrogate() ? 2 : 1;
    t.truncate(i);
    return t.trimmed();
}

// Every input pasted into every box of the dialog (the other boxes filled
// with plain text), saved, and the new row read back; older rows unchanged.
void probar(QSqlDatabase& db, const Dialogo& dlg)
{
    if (!dlg.previas.isEmpty())
        ejecutarSql(db, dlg.previas);
    ejecutarSql(db, u"INSERT INTO %1 (id,%2) VALUES ('2','O''B'),('1','Zz')"_s.arg(dlg.tabla, dlg.cajas[0].columna));
    const QString todas = u"SELECT * FROM %1 ORDER BY %2"_s.arg(dlg.tabla, dlg.clave);
    const QStringList viejas = filas(db, todas);
    const QString cuantas = u"SELECT COUNT(*) FROM "_s + dlg.tabla;
    const QString ultima = u"SELECT %1 FROM %2 WHERE id='1' ORDER BY %3 DESC LIMIT 1"_s;
    Cajas cajas;
    int relleno = 0;
    alAbrir(dlg.forma, [&](QWidget* d) {
        for (const Campo& caja : dlg.cajas) {
            if (caja.tipo != Tipo::Texto)
                continue;
            QStringList lista = entradas;
            lista << QString(caja.largo, u'y') + u"z"_s << QString(caja.largo - 1, u'x') + u"😀"_s;
            for (const QString& pegado : lista) {
                for (const Campo& otra : dlg.cajas)
                    if (otra.tipo == Tipo::Texto)
                            control<QWidget>(d, otra.nombre)->setProperty("text", u"r%1"_s.arg(++relleno, 2, 10, QChar(u'0')));
                if (dlg.preparar)
                    dlg.preparar(d);
                QWidget* w = control<QWidget>(d, caja.nombre);
                w->setProperty("text", QString());
                if (auto* le = qobject_cast<QLineEdit*>(w))
                    le->insert(pegado);
                else
                    qobject_cast<QPlainTextEdit*>(w)->insertPlainText(pegado);
                const QString esperado = guardable(pegado, caja.largo, caja.varias);
                const int n = valor(db, cuantas).toInt();
                cajas.limpiar();
                dlg.guardar(d);
                const bool corto = esperado.size() < (caja.minimo >= 0 ? caja.minimo : std::max(dlg.minimo, 1));
                QCOMPARE(cajas.ultima(), corto ? dlg.corto : dlg.listo);
                QCOMPARE(valor(db, cuantas).toInt(), corto ? n : n + 1);
                if (!corto)
                    QCOMPARE(valor(db, ultima.arg(caja.columna, dlg.tabla, dlg.clave)).toString(), esperado);
            }
        }
    });
    clsNomencla nomencla;
    QVERIFY(dlg.abrir(nomencla, u"1"_s, db));
    QCOMPARE(filas(db, todas).mid(0, viejas.size()), viejas);
}

} // namespace

class PruebaTextosHostiles : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void en_cada_caja_data()
    {
        porCaso(dialogos(), [](const Dialogo& d) { return d.forma + d.tabla; });
    }

    void en_cada_caja()
    {
        QFETCH(int, i);
        QSqlDatabase db = baseNueva(u"t_hostiles"_s);
        probar(db, dialogos()[i]);
    }

    // Boxes for numbers don't take text that isn't one; a number pasted
    // with a comma is read with the decimal point.
    void en_las_cajas_de_numeros()
    {
        QSqlDatabase db = baseNueva(u"t_hostiles"_s);
        const auto rechaza = [](QWidget* d, const QString& nombre) {
            auto* caja = control<QLineEdit>(d, nombre);
            for (const QString& pegado : entradas) {
                caja->setText(u"7"_s);
                caja->selectAll();
                caja->insert(pegado);
                // The box cuts at its length first: what is left may be a number.
                const QString cortado = pegado.left(caja->property("maxLength").toInt());
                const bool numero = QRegularExpression(u"^\\s*\\d*\\s*$"_s).match(cortado).hasMatch();
                QCOMPARE(caja->text(), numero ? cortado : u"7"_s);
            }
        };
        Cajas cajas;
        clsNomencla nomencla;
        alAbrir(u"frmLsTipoCli"_s, [&](QWidget* d) {
            for (const QString& nombre : {u"Tx(2)"_s, u"Tx(3)"_s, u"Tx(4)"_s})
                rechaza(d, nombre);
            tx(d, 0)->setText(u"Mayorista"_s);
            tx(d, 4)->selectAll();
            tx(d, 4)->insert(u" 12,5 "_s);
            tx(d, 3)->selectAll();
            tx(d, 3)->insert(u"12,5"_s); // days: no decimals
            pulsar(d, u"Bt(0)"_s);
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
    }

    // The lot and its sanitary registration come back exactly.
    void en_la_captura_de_lotes()
    {
        QSqlDatabase db = baseNueva(u"t_hostiles"_s);
        ejecutarSql(db, u"INSERT INTO lsPaises (id,nom) VALUES ('1','Ecuador')"_s);
        clsNomencla nomencla;
        for (const QString& pegado : entradas) {
            Cajas cajas;
            alAbrir(u"frmLotes"_s, [&](QWidget* d) {
                control<QLineEdit>(d, u"Text1(0)"_s)->insert(pegado);
                control<QLineEdit>(d, u"Text1(1)"_s)->insert(pegado);
                pulsar(d, u"Bt(1)"_s);
            });
            InfoLotes r;
            const QString lote = guardable(pegado, 15, false);
            QCOMPARE(nomencla.AgregarLoteCaducidad(u"1"_s, db, r), !lote.isEmpty());
            QCOMPARE(r.Lote, lote);
            QCOMPARE(r.RegistroSanitario, lote.isEmpty() ? QString() : guardable(pegado, 20, false));
        }
    }
};

QTEST_MAIN(PruebaTextosHostiles)
#include "prueba_textos_hostiles.moc"
