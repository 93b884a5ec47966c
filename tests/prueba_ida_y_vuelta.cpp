// A record survives its dialog. The tables hold records at the edges of what
// the host may have stored (texts longer than the boxes allow, in columns
// wider than ours; the widest figures; decimals the list doesn't show; flags
// and activities outside their lists; blanks at the ends, apostrophes, line
// breaks, 4-byte characters; NULLs; names equal for the search but for case
// and accents). Every record of every dialog with an edit mode is picked
// (the list stays on it) and saved unchanged: every row of every table stays
// byte for byte. Then one field at a time is changed: only that column of
// that row changes.
#include "tests/edicion.h"

#include "core/Controles.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>

using namespace Qt::StringLiterals;
using namespace prueba;

namespace {

// A text longer than any box, beginning with `inicio`.
QString largo(const QString& inicio)
{
    return inicio + u" O'Brien 😀 "_s + QString(170, u'ñ') + u" fin 𝄞"_s;
}

// Inserts rows with their values bound.
void insertar(QSqlDatabase& db, const QString& tabla, const QString& columnas, const QList<QVariantList>& filas)
{
    const QString sql = u"INSERT INTO %1 (%2) VALUES (%3)"_s.arg(
        tabla, columnas, QStringList(columnas.count(u',') + 1, u"?"_s).join(u','));
    for (const QVariantList& f : filas)
        valor(db, sql, f);
}

void llenar(QSqlDatabase& db)
{
    // The host's text columns are wider than the boxes. Such a host keeps
    // indexes of its own: the covering ones of our schema would pass the
    // length of a key, and the round trip does not depend on them.
    for (const QString& f : filas(db, u"SELECT DISTINCT TABLE_NAME, INDEX_NAME FROM information_schema.STATISTICS "
                                      "WHERE TABLE_SCHEMA=DATABASE() AND NON_UNIQUE=1"_s)) {
        const QStringList t = f.split(u'|');
        ejecutarSql(db, u"ALTER TABLE `%1` DROP INDEX `%2`"_s.arg(t[0], t[1]));
    }
    for (const QString& f : filas(db, u"SELECT TABLE_NAME, COLUMN_NAME FROM information_schema.COLUMNS WHERE "
                                      "TABLE_SCHEMA=DATABASE() AND DATA_TYPE='varchar' AND COLUMN_NAME<>'id'"_s)) {
        const QStringList t = f.split(u'|');
        ejecutarSql(db, u"ALTER TABLE `%1` MODIFY `%2` VARCHAR(250) NOT NULL DEFAULT ''"_s.arg(t[0], t[1]));
    }
    const QString blancos = u"  Blancos al borde  "_s;
    const QString raro = u"O'Neil \"x\" 😀\tfin"_s;
    const QString lineas = u"línea uno\r\nlínea\u00a0dos \\ fin "_s;
    for (const QString& t : {u"mCatClie"_s, u"mZonaClie"_s})
        insertar(db, t, u"id,cod,%1,des,est"_s.arg(t == u"mCatClie"_s ? u"cat"_s : u"zon"_s),
                 {{u"1"_s, 1, largo(u"Largo"_s), largo(u"des"_s), 1},
                  {u"1"_s, 2, blancos, lineas, 1},
                  {u"1"_s, 3, raro, u""_s, 1},
                  {u"1"_s, 4, u"Médico"_s, u"Especialista"_s, 1},
                  {u"1"_s, 5, u"MEDICO"_s, u"General"_s, 1},
                  {u"2"_s, 1, u"Otra"_s, u"x"_s, 1}});
    for (const QString& t : {u"Cargos"_s, u"SRI_Documentos"_s, u"SRI_Sustentos"_s})
        insertar(db, t, u"id,%1,des,est"_s.arg(t == u"Cargos"_s ? u"car"_s : u"cin"_s),
                 {{u"1"_s, largo(u"Largo"_s), largo(u"des"_s), 1},
                  {u"1"_s, blancos, lineas, 1},
                  {u"1"_s, raro, u""_s, 1},
                  {u"1"_s, u"É1 Médico"_s, u"De planta"_s, 1},
                  {u"1"_s, u"e1 medico"_s, u"Residente"_s, 1},
                  {u"2"_s, u"Otra"_s, u"x"_s, 1}});
    // Figures: the widest of the columns, decimals the list doesn't show.
    insertar(db, u"mTipClie"_s, u"id,cod,tip,des,cre,pla,descu,inte,est"_s,
             {{u"1"_s, 1, largo(u"Largo"_s), lineas, 999999999999.99, 30.25, 0.01, 0.5, 1},
              {u"1"_s, 2, blancos, largo(u"des"_s), -999999999999.99, 0, 100.75, 0, 1},
              {u"1"_s, 3, raro, u""_s, 1500000, 45.5, 12.34, 0, 1},
              {u"1"_s, 4, u"Médico"_s, u"Con convenio"_s, 1500, 30, 12.5, 0, 1},
              {u"1"_s, 5, u"medico"_s, u"Sin convenio"_s, 200, 8, 0, 0, 1},
              {u"2"_s, 1, u"Otra"_s, u"x"_s, 1, 2, 3, 0, 1}});
    insertar(db, u"mZonaLugar"_s, u"id,zon,lug,ord,est"_s, {{u"1"_s, 1, raro, 7.5, 1}, {u"1"_s, 2, blancos, 0.25, 1}});
    insertar(db, u"mCliente"_s, u"id,cat,tip,zon,lug,ciu"_s, {{u"1"_s, 1, 1, 1, raro, blancos}});
    insertar(db, u"lsPaises"_s, u"id,nom"_s, {{u"1"_s, largo(u"Largo"_s)}, {u"1"_s, blancos}, {u"1"_s, raro}, {u"2"_s, raro}});
    for (const QString& t : {u"lscontratos"_s, u"lsCuentas"_s})
        insertar(db, t, u"id,%1,est"_s.arg(t == u"lsCuentas"_s ? u"cta"_s : u"con"_s),
                 {{u"1"_s, largo(u"Largo"_s), 1}, {u"1"_s, blancos, 1}, {u"1"_s, raro, 1}, {u"2"_s, raro, 1}});
    // A card flag the host stored as 2.
    insertar(db, u"lsBancos"_s, u"id,nom,tar,cor,dife,est"_s,
             {{u"1"_s, largo(u"Largo"_s), 2, 999999999999.99, -999999999999.99, 1},
              {u"1"_s, blancos, 0, 0.01, 12.5, 1},
              {u"1"_s, raro, 1, 4.02, 7.5, 1},
              {u"1"_s, u"Pichincha"_s, 1, 2.5, 1, 1},
              {u"1"_s, u"PICHINCHA"_s, 0, 0, 0, 1}});
    // Activities outside the list, flags other than 0 and 1, the widest
    // number of branches, a logo and none, a company of status 2 and a
    // removed one whose branch stays.
    insertar(db, u"empresas"_s, u"cod,id,emp,act,suc,selec,art,nart,dir,tel,ciu,prov,logo,est"_s,
             {{1, u"1"_s, u"Matriz 😀"_s, 0, 1, 0, 0, u""_s, u"d"_s, u"t"_s, u"c"_s, u"p"_s, QVariant(), 1},
              {2, u"1"_s, largo(u"Largo"_s), 9, 2147483647, 2, 5, largo(u"n"_s), largo(u"d"_s), largo(u"t"_s),
               largo(u"c"_s), largo(u"p"_s), QByteArray("\x89PNG\r\n\x1a\n\0\xff", 10), 1},
              {3, u"1"_s, blancos, -1, 3, 1, 1, u"A'1"_s, lineas, raro, raro, raro, QVariant(), 2},
              {4, u"1"_s, u"Cerrada"_s, 0, 1, 0, 0, u""_s, u"d"_s, u"t"_s, u"c"_s, u"p"_s, QVariant(), 0},
              {5, u"2"_s, u"Otra S.A."_s, 0, 1, 0, 0, u""_s, u"d"_s, u"t"_s, u"c"_s, u"p"_s, QVariant(), 1}});
    insertar(db, u"Sucursales"_s, u"id,emp,ciu,nom,dir,tel,est"_s,
             {{u"1"_s, u"Matriz 😀"_s, largo(u"c"_s), largo(u"Largo"_s), largo(u"d"_s), largo(u"t"_s), 1},
              {u"1"_s, u"Cerrada"_s, blancos, raro, lineas, u"0999"_s, 2},
              {u"1"_s, blancos, raro, blancos, u"d"_s, u""_s, 1},
              {u"1"_s, u"MATRIZ 😀"_s, u"c"_s, u"Mayúsculas"_s, u"d"_s, u"t"_s, 1}, // its company in another case
              {u"2"_s, u"Otra S.A."_s, u"c"_s, u"n"_s, u"d"_s, u"t"_s, 1}});
    ejecutarSql(db, u"INSERT INTO mProveedor (cod,nom,ced) VALUES (7,'Proveedor','1790000000001')"_s);
    insertar(db, u"SubProveedor"_s, u"id,prov,cin,ruc,raz,dir,est"_s,
             {{u"1"_s, 7, largo(u"Largo"_s), largo(u"r"_s), largo(u"z"_s), largo(u"d"_s), 1},
              {u"1"_s, 7, blancos, raro, lineas, u""_s, 2},
              {u"2"_s, 7, raro, u"r"_s, u"z"_s, u"d"_s, 1}});
}

using Fotos = QMap<QString, QStringList>;

Fotos fotografiar(QSqlDatabase& db)
{
    Fotos r;
    for (const QString& t : filas(db, u"SELECT TABLE_NAME FROM information_schema.TABLES WHERE TABLE_SCHEMA=DATABASE()"_s))
        r.insert(t, foto(db, t));
    return r;
}

// "table.column" of each cell that differs; "table" when rows came or went.
QStringList diferencias(QSqlDatabase& db, const Fotos& antes, const Fotos& despues)
{
    QStringList r;
    for (auto [tabla, filasAntes] : antes.asKeyValueRange()) {
        const QStringList filasDespues = despues.value(tabla);
        if (filasAntes.size() != filasDespues.size()) {
            r << tabla;
            continue;
        }
        const QStringList nombres = columnas(db, tabla);
        for (qsizetype i = 0; i < filasAntes.size(); ++i) {
            const QStringList a = filasAntes[i].split(QChar(31)), b = filasDespues[i].split(QChar(31));
            for (qsizetype j = 0; j < a.size(); ++j)
                if (a[j] != b.value(j))
                    r << tabla + u'.' + nombres.value(j);
        }
    }
    return r;
}

// The row with a cell that begins with "Largo": the one whose fields are changed.
int filaLarga(nomencla::Alfarje* gr)
{
    for (int i = 0; i < gr->RowCount(); ++i)
        for (int c = 0; c < gr->model()->columnCount(); ++c)
            if (gr->CellText(i, c).startsWith(u"Largo"_s))
                return i;
    return -1;
}

} // namespace

class PruebaIdaYVuelta : public QObject {
    Q_OBJECT
    QSqlDatabase db;
    clsNomencla nomencla;

private Q_SLOTS:
    void initTestCase()
    {
        db = baseNueva(u"t_ida_y_vuelta"_s);
        llenar(db);
    }

    // The boxes: typing and pasting stay within MaxLength characters (an
    // emoji is one, never cut in half), also on a longer text set by the
    // program (kept whole: every stored record below shows so).
    void cajas_de_texto_data()
    {
        QTest::addColumn<bool>("varias");
        QTest::addColumn<QString>("puesto"); // set by the program
        QTest::addColumn<QString>("tecleado"); // then typed at the end ("^" first: all selected)
        QTest::addColumn<QString>("pegado"); // then pasted at the end
        QTest::addColumn<QString>("queda");
        for (const bool varias : {false, true}) {
            const auto fila = [varias](const char* nombre) -> QTestData& {
                return QTest::newRow(QByteArray(QByteArray(varias ? "varias " : "una ") + nombre).constData()) << varias;
            };
            fila("largo, tecleado") << u"abcdefgh"_s << u"x"_s << u"y"_s << u"abcdefgh"_s;
            fila("largo, reemplazado") << u"abcdefgh"_s << u"^xy"_s << u""_s << u"xy"_s;
            fila("tecleado hasta el límite") << u""_s << u"abcdef"_s << u""_s << u"abcd"_s;
            fila("emoji pegado en el último") << u"abc"_s << u""_s << u"😀😀x"_s << u"abc😀"_s;
            fila("pegado cortado") << u""_s << u""_s << u"a😀bcd"_s << u"a😀bc"_s;
        }
    }

    void cajas_de_texto()
    {
        QFETCH(bool, varias);
        QFETCH(QString, puesto);
        QFETCH(QString, tecleado);
        QFETCH(QString, pegado);
        QFETCH(QString, queda);
        QWidget ventana;
        QWidget* caja = varias ? static_cast<QWidget*>(new nomencla::CajaTextoMultilinea(&ventana, 4))
                               : new nomencla::CajaTexto(&ventana, 4);
        ventana.show();
        caja->setFocus();
        caja->setProperty("text", puesto);
        QCOMPARE(caja->property("text").toString(), puesto);
        if (tecleado.startsWith(u'^')) {
            QTest::keyClick(caja, Qt::Key_A, Qt::ControlModifier);
            tecleado.remove(0, 1);
        } else {
            QTest::keyClick(caja, Qt::Key_End, Qt::ControlModifier);
        }
        teclear(caja, tecleado);
        if (!pegado.isEmpty()) {
            QGuiApplication::clipboard()->setText(pegado);
            QTest::keyClick(caja, Qt::Key_V, Qt::ControlModifier);
        }
        QCOMPARE(caja->property("text").toString(), queda);
    }

    // Each record picked shows its stored texts whole and, saved as it is,
    // leaves every table as it was.
    void sin_cambios_data()
    {
        QTest::addColumn<int>("i");
        for (int i = 0; i < int(dialogos().size()); ++i)
            if (dialogos()[i].columnaClave >= 0)
                QTest::newRow(qPrintable(dialogos()[i].forma)) << i;
    }

    void sin_cambios()
    {
        QFETCH(int, i);
        const Dialogo& dlg = dialogos()[i];
        const Fotos antes = fotografiar(db);
        Cajas cajas;
        int guardados = 0;
        alAbrir(dlg.forma, [&](QWidget* d) {
            auto* gr = control<nomencla::Alfarje>(d, u"GR"_s);
            QVERIFY(gr->RowCount() >= 2);
            for (int f = 0; f < gr->RowCount(); ++f) {
                dobleClic(gr, f);
                QCOMPARE(gr->Row(), f); // not a row whose name is equal for the search
                const QString cod = gr->CellText(f, dlg.columnaClave);
                for (const Campo& c : dlg.cajas) {
                    if (c.tipo != Tipo::Texto)
                        continue;
                    const QString guardado = valor(db, u"SELECT %1 FROM %2 WHERE cod=? AND id='1'"_s.arg(c.columna, dlg.tabla),
                                                   {cod}).toString();
                    QCOMPARE(textoDe(d, c.nombre), guardado);
                }
                cajas.limpiar();
                pulsar(d, u"Bt(0)"_s);
                QCOMPARE(cajas.ultima(), guardada);
                ++guardados;
            }
        });
        QVERIFY(dlg.abrir(nomencla, u"1"_s, db));
        QVERIFY(guardados >= 2);
        QCOMPARE(diferencias(db, antes, fotografiar(db)), QStringList());
    }

    // One field changed: that column of that row, and nothing else.
    void un_campo_data()
    {
        QTest::addColumn<int>("i");
        QTest::addColumn<int>("campo");
        for (int i = 0; i < int(dialogos().size()); ++i)
            for (int c = 0; dialogos()[i].columnaClave >= 0 && c < int(dialogos()[i].cajas.size()); ++c)
                QTest::newRow(qPrintable(dialogos()[i].forma + u' ' + dialogos()[i].cajas[c].nombre)) << i << c;
    }

    void un_campo()
    {
        QFETCH(int, i);
        QFETCH(int, campo);
        const Dialogo& dlg = dialogos()[i];
        const Campo& c = dlg.cajas[campo];
        const Fotos antes = fotografiar(db);
        Cajas cajas;
        alAbrir(dlg.forma, [&](QWidget* d) {
            // The same record each time, known by its key after the first.
            auto* gr = control<nomencla::Alfarje>(d, u"GR"_s);
            static QHash<QString, QString> claves;
            if (!claves.contains(dlg.forma)) {
                const int f = filaLarga(gr);
                QVERIFY(f >= 0);
                claves.insert(dlg.forma, gr->CellText(f, dlg.columnaClave));
            }
            dobleClic(gr, filaCon(gr, claves.value(dlg.forma), dlg.columnaClave));
            QWidget* w = control<QWidget>(d, c.nombre);
            if (c.nuevo == u"!"_s)
                qobject_cast<QAbstractButton*>(w)->click();
            else if (auto* combo = qobject_cast<QComboBox*>(w))
                combo->setCurrentIndex((combo->currentIndex() + 1) % combo->count());
            else
                w->setProperty("text", c.nuevo);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), guardada);
        });
        QVERIFY(dlg.abrir(nomencla, u"1"_s, db));
        QCOMPARE(diferencias(db, antes, fotografiar(db)), QStringList{dlg.tabla.toLower() + u'.' + c.columna});
    }
};

QTEST_MAIN(PruebaIdaYVuelta)
#include "prueba_ida_y_vuelta.moc"
