// A place picked shows the picked place and keeps the list on it, also when
// another place's name is equal to it for the search (case and accents); the
// records of every list with such a twin are picked and saved unchanged by
// the round trip (prueba_ida_y_vuelta.cpp). A key past the largest one is
// refused with a message instead of being computed wrongly.
#include "tests/prueba_estructura.h"

using namespace Qt::StringLiterals;
using namespace prueba;
using nomencla::Alfarje;

namespace {

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
        ejecutarSql(db, u"DELETE FROM mCatClie;\nDELETE FROM mTipClie;\nDELETE FROM mZonaClie;\nDELETE FROM mZonaLugar"_s);
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
