// A pick shows the picked row and keeps the list on it, also when another
// row's name is equal to it for the search (case and accents); an unchanged
// save then writes the row back as it was. A key past the largest one is
// refused with a message instead of being computed wrongly.
#include "tests/prueba_estructura.h"

#include <QCheckBox>

using namespace Qt::StringLiterals;
using namespace prueba;
using nomencla::Alfarje;

namespace {

// A dialog, two rows whose names the search takes as equal, and what the
// fields show for each: the controls and, per name, their texts in order.
struct Dialogo {
    const char* nombre;
    QString forma;
    Metodo metodo;
    QString tabla;
    QString filas; // the INSERT of both rows, and of what hangs from them
    QStringList controles;
    QHash<QString, QStringList> muestra;
};

// A coded list whose key the database gives: names a and b, each with its
// description.
Dialogo codificada(const char* nombre, const QString& forma, Metodo metodo, const QString& tabla,
                   const QString& columna, const QString& a, const QString& desA, const QString& b, const QString& desB)
{
    return {nombre, forma, metodo, tabla,
            u"INSERT INTO %1 (id,%2,des,est) VALUES ('1','%3','%4',1),('1','%5','%6',1)"_s.arg(tabla, columna, a, desA, b, desB),
            {u"Tx(0)"_s, u"Tx(1)"_s}, {{a, {a, desA}}, {b, {b, desB}}}};
}

const QList<Dialogo> dialogos{
    {"categorias", u"frmLsCategorias"_s, &clsNomencla::CategoriaClientes, u"mCatClie"_s,
     u"INSERT INTO mCatClie (id,cod,cat,des,est) VALUES ('1',1,'Médico','Especialista',1),"
     "('1',2,'Medico','General',1),('2',1,'Medico','otra empresa',1)"_s,
     {u"Tx(0)"_s, u"Tx(1)"_s},
     {{u"Médico"_s, {u"Médico"_s, u"Especialista"_s}}, {u"Medico"_s, {u"Medico"_s, u"General"_s}}}},
    codificada("cargos", u"frmLsCargos"_s, &clsNomencla::Cargos, u"Cargos"_s, u"car"_s, u"MÉDICO"_s, u"De planta"_s,
               u"medico"_s, u"Residente"_s),
    codificada("documentos", u"frmLsDocAutSRI"_s, &clsNomencla::DocumentAutorizSRI, u"SRI_Documentos"_s, u"cin"_s,
               u"É1"_s, u"Factura"_s, u"e1"_s, u"Liquidación"_s),
    codificada("sustentos", u"frmLsSustentos"_s, &clsNomencla::SustentoTributario, u"SRI_Sustentos"_s, u"cin"_s,
               u"Á2"_s, u"Crédito tributario"_s, u"a2"_s, u"Costo"_s),
    {"tipos", u"frmLsTipoCli"_s, &clsNomencla::TipoClientes, u"mTipClie"_s,
     u"INSERT INTO mTipClie (id,cod,tip,des,cre,pla,descu,inte,est) VALUES "
     "('1',1,'Médico','Con convenio',1500,30,12.5,0,1),('1',2,'medico','Sin convenio',200,8,0,0,1)"_s,
     {u"Tx(0)"_s, u"Tx(1)"_s, u"Tx(2)"_s, u"Tx(3)"_s, u"Tx(4)"_s},
     {{u"Médico"_s, {u"Médico"_s, u"Con convenio"_s, u"1500"_s, u"30"_s, u"12.5"_s}},
      {u"medico"_s, {u"medico"_s, u"Sin convenio"_s, u"200"_s, u"8"_s, u"0"_s}}}},
    {"zonas", u"frmLsZona"_s, &clsNomencla::ZonaClientes, u"mZonaClie"_s,
     u"INSERT INTO mZonaClie (id,cod,zon,des,est) VALUES ('1',1,'Norte','Quito norte',1),('1',2,'NORTÉ','Guayaquil',1);\n"
     "INSERT INTO mZonaLugar (id,zon,lug,ord,est) VALUES ('1',1,'Carcelén',1,1),('1',2,'Urdesa',1,1)"_s,
     {u"Tx(0)"_s, u"Tx(1)"_s, u"GR2"_s},
     {{u"Norte"_s, {u"Norte"_s, u"Quito norte"_s, u"Carcelén"_s}}, {u"NORTÉ"_s, {u"NORTÉ"_s, u"Guayaquil"_s, u"Urdesa"_s}}}},
    {"bancos", u"frmLsBancos"_s, &clsNomencla::Bancos, u"lsBancos"_s,
     u"INSERT INTO lsBancos (id,nom,tar,cor,dife,est) VALUES ('1','Pichincha',1,2.5,1,1),('1','PICHINCHA',0,0,0,1)"_s,
     {u"Text1"_s, u"Check1"_s, u"Nm(0)"_s, u"Nm(1)"_s},
     {{u"Pichincha"_s, {u"Pichincha"_s, u"1"_s, u"2.5"_s, u"1"_s}}, {u"PICHINCHA"_s, {u"PICHINCHA"_s, u"0"_s, u"0"_s, u"0"_s}}}},
};

// What a control shows: a box its text, a check box 1 or 0, a grid its first column.
QString muestra(QWidget* d, const QString& nombre)
{
    QWidget* w = control<QWidget>(d, nombre);
    if (auto* casilla = qobject_cast<QCheckBox*>(w))
        return casilla->isChecked() ? u"1"_s : u"0"_s;
    if (auto* gr = qobject_cast<Alfarje*>(w)) {
        QStringList celdas;
        for (int f = 0; f < gr->RowCount(); ++f)
            celdas << gr->CellText(f, 0);
        return celdas.join(u',');
    }
    return w->property("text").toString();
}

// A dialog whose keys are MAX(cod)+1 of the company, and its last record.
struct ConClave {
    const char* nombre;
    QString forma;
    Metodo metodo;
    QString tabla;
    QString ultima; // %1: the key
    QString nombreCol;
};

const QList<ConClave> conClave{
    {"categorias", u"frmLsCategorias"_s, &clsNomencla::CategoriaClientes, u"mCatClie"_s,
     u"INSERT INTO mCatClie (id,cod,cat,des,est) VALUES ('1',%1,'Última','',0)"_s, u"cat"_s},
    {"tipos", u"frmLsTipoCli"_s, &clsNomencla::TipoClientes, u"mTipClie"_s,
     u"INSERT INTO mTipClie (id,cod,tip,des,est) VALUES ('1',%1,'Último','',1)"_s, u"tip"_s},
    {"zonas", u"frmLsZona"_s, &clsNomencla::ZonaClientes, u"mZonaClie"_s,
     u"INSERT INTO mZonaClie (id,cod,zon,des,est) VALUES ('1',%1,'Última','',1)"_s, u"zon"_s},
};

} // namespace

class PruebaEleccion : public QObject {
    Q_OBJECT
    QSqlDatabase db;
    clsNomencla nomencla;


private Q_SLOTS:
    void initTestCase() { db = baseNueva(u"t_eleccion"_s); }

    // One database for every case, its lists emptied before each.
    void init()
    {
        ejecutarSql(db, u"DELETE FROM mCatClie;\nDELETE FROM Cargos;\nDELETE FROM SRI_Documentos;\n"
                        "DELETE FROM SRI_Sustentos;\nDELETE FROM mTipClie;\nDELETE FROM mZonaClie;\n"
                        "DELETE FROM mZonaLugar;\nDELETE FROM lsBancos"_s);
    }

    // Each of the two rows picked in turn: its own cells in every field, the
    // list still on it, and the whole table as it was after an unchanged save.
    void eleccion_data()
    {
        QTest::addColumn<int>("i");
        QTest::addColumn<int>("fila");
        for (int i = 0; i < dialogos.size(); ++i)
            for (int fila = 0; fila < 2; ++fila)
                QTest::addRow("%s %d", dialogos[i].nombre, fila) << i << fila;
    }

    void eleccion()
    {
        QFETCH(int, i);
        QFETCH(int, fila);
        const Dialogo& c = dialogos.at(i);
        ejecutarSql(db, c.filas);
        const QString todo = u"SELECT * FROM %1 ORDER BY 1,2"_s.arg(c.tabla);
        const QStringList antes = filas(db, todo);
        Cajas cajas;
        QString elegido;
        QStringList vistos;
        int filaTras = -2;
        alAbrir(c.forma, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            QCOMPARE(gr->RowCount(), 2);
            elegido = gr->CellText(fila, 0);
            dobleClic(gr, fila);
            for (const QString& nombre : c.controles)
                vistos << muestra(d, nombre);
            filaTras = gr->Row();
            pulsar(d, u"Bt(0)"_s);
        });
        (nomencla.*c.metodo)(u"1"_s, db);
        QCOMPARE(cajas.ultima(), guardada);
        QCOMPARE(vistos, c.muestra.value(elegido));
        QCOMPARE(filaTras, fila);
        QCOMPARE(filas(db, todo), antes);
    }

    // A place picked in a zone: its name and the list on it, though another
    // place's name is equal for the search.
    void eleccion_de_lugar()
    {
        ejecutarSql(db, u"INSERT INTO mZonaClie (id,cod,zon,des,est) VALUES ('1',1,'Norte','',1);\n"
                        "INSERT INTO mZonaLugar (id,zon,lug,ord,est) VALUES ('1',1,'Cotocollao',1,1),"
                        "('1',1,'COTOCOLLAO',2,1)"_s);
        QStringList vistos;
        alAbrir(u"frmLsZona"_s, [&](QWidget* d) {
            dobleClic(control<Alfarje>(d, u"GR"_s), 0);
            auto* gr2 = control<Alfarje>(d, u"GR2"_s);
            for (int fila = 0; fila < 2; ++fila) {
                clic(d, u"GR2"_s, fila);
                vistos << gr2->CellText(fila, 0) + u'|' + tx(d, 2)->text() + u'|' + QString::number(gr2->Row());
            }
        });
        nomencla.ZonaClientes(u"1"_s, db);
        QCOMPARE(vistos.size(), 2);
        for (int fila = 0; fila < 2; ++fila) {
            const QStringList partes = vistos[fila].split(u'|');
            QCOMPARE(partes[1], partes[0]);
            QCOMPARE(partes[2], QString::number(fila));
        }
    }

    // The next key after the largest a 32-bit key holds is refused with a
    // message, and nothing is written (a zone's pending place neither); the
    // largest one itself is still given.
    void clave_al_limite_data()
    {
        QTest::addColumn<int>("i");
        QTest::addColumn<qint64>("maximo");
        for (int i = 0; i < conClave.size(); ++i) {
            QTest::addRow("%s cabe", conClave[i].nombre) << i << qint64(2147483646);
            QTest::addRow("%s no cabe", conClave[i].nombre) << i << qint64(2147483647);
        }
    }

    void clave_al_limite()
    {
        QFETCH(int, i);
        QFETCH(qint64, maximo);
        const ConClave& c = conClave.at(i);
        ejecutarSql(db, c.ultima.arg(maximo) + u";\nINSERT INTO %1 (id,cod,%2) VALUES ('2',7,'Otra empresa')"_s
                                                 .arg(c.tabla, c.nombreCol));
        const auto todo = [&] {
            return filas(db, u"SELECT * FROM %1 ORDER BY 1"_s.arg(c.tabla))
                + filas(db, u"SELECT * FROM mZonaLugar ORDER BY 1"_s);
        };
        const QStringList antes = todo();
        Cajas cajas;
        bool usable = false;
        alAbrir(c.forma, [&](QWidget* d) {
            escribir(d, u"Tx(0)"_s, u"Nueva"_s);
            if (c.forma == u"frmLsZona"_s) {
                tx(d, 2)->setText(u"Tumbaco"_s);
                tecla(tx(d, 3), Qt::Key_Return);
            }
            pulsar(d, u"Bt(0)"_s);
            usable = d->isVisible() && tx(d, 0)->isEnabled();
        });
        const bool cambios = (nomencla.*c.metodo)(u"1"_s, db);
        if (maximo < 2147483647) {
            QVERIFY(cambios);
            QCOMPARE(cajas.ultima(), guardada);
            QCOMPARE(valor(db, u"SELECT cod FROM %1 WHERE %2='Nueva'"_s.arg(c.tabla, c.nombreCol)).toLongLong(),
                     2147483647LL);
            return;
        }
        QVERIFY(usable);
        QCOMPARE(cajas.vistas.size(), 1);
        QCOMPARE(cajas.vistas[0].titulo, u"Error de base de datos"_s);
        QCOMPARE(cajas.vistas[0].icono, QMessageBox::Critical);
        QCOMPARE(cajas.vistas[0].texto,
                 u"No se puede dar un código al registro nuevo: el último ya es 2147483647, el mayor que admite "
                 "la base de datos. No se guardó nada."_s);
        QCOMPARE(todo(), antes);
    }
};

QTEST_MAIN(PruebaEleccion)
#include "prueba_eleccion.moc"
