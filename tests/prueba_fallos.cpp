// Faults while a dialog is open: the connection killed from another session,
// a row locked until the lock wait times out, the server stopped and started
// again. Each time the failure is shown, nothing is half written, the dialog
// stays usable and the next operation works once the server is back.
#include "tests/support/Prueba.h"

#include "core/Alfarje.h"

#include <nomencla/clsNomencla.h>

#include <QLineEdit>
#include <QProcess>
#include <QSqlError>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace prueba;
using nomencla::Alfarje;

namespace {

bool privdb(const QString& orden, const QString& dir)
{
    QProcess p;
    p.start(QStringLiteral(NOMENCLA_FUENTES "/scripts/privdb"), {orden, dir});
    return p.waitForFinished(120000) && p.exitCode() == 0;
}

} // namespace

class PruebaFallos : public QObject {
    Q_OBJECT
    QSqlDatabase db;
    clsNomencla nomencla;

private Q_SLOTS:
    void init()
    {
        db = baseNueva(u"t_fallos"_s);
        ejecutarSql(db, u"INSERT INTO lsCiudades (id,ciu) VALUES ('1','Ambato'),('1','Quito'),('2','Ambato')"_s);
    }

    void conexion_matada_desde_otra_sesion()
    {
        QSqlDatabase otra = otraConexion(db, u"otra"_s);
        Cajas cajas;
        alAbrir(u"frmLsCiudad"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* tx = control<QLineEdit>(d, u"Text1"_s);
            const QVariant sesion = valor(db, u"SELECT CONNECTION_ID()"_s);
            ejecutarSql(otra, u"KILL CONNECTION "_s + sesion.toString());
            teclear(tx, u"Loja"_s);
            tecla(tx, Qt::Key_Return);
            QCOMPARE(cajas.vistas.last().titulo, u"Error de base de datos"_s);
            QVERIFY(cajas.ultima().contains(u"Se perdió la conexión"_s));
            QVERIFY(cajas.ultima().contains(u"se restableció"_s));
            QCOMPARE(gr->RowCount(), 2);
            QCOMPARE(tx->text(), u"Loja"_s);
            // The same save again works on the restored connection.
            tecla(tx, Qt::Key_Return);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado correctamente!"_s);
            QCOMPARE(gr->RowCount(), 3);
        });
        QVERIFY(nomencla.Ciudades(u"1"_s, db));
        QCOMPARE(valor(db, u"SELECT COUNT(*) FROM lsCiudades WHERE ciu='Loja'"_s).toInt(), 1);
    }

    void fila_bloqueada_hasta_el_tiempo_de_espera()
    {
        QSqlDatabase otra = otraConexion(db, u"otra"_s);
        ejecutarSql(db, u"SET SESSION innodb_lock_wait_timeout=1"_s);
        Cajas cajas;
        alAbrir(u"frmLsCiudad"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* tx = control<QLineEdit>(d, u"Text1"_s);
            ejecutarSql(otra, u"START TRANSACTION;\nSELECT * FROM lsCiudades WHERE id='1' FOR UPDATE"_s);
            teclear(tx, u"amb"_s);
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(2)"_s);
            QCOMPARE(cajas.vistas.last().titulo, u"Error de base de datos"_s);
            QVERIFY(cajas.ultima().contains(u"1205"_s));
            QCOMPARE(gr->RowCount(), 2);
            ejecutarSql(otra, u"ROLLBACK"_s);
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(2)"_s);
            QCOMPARE(cajas.ultima(), u"La operación se realizó correctamente!"_s);
            QCOMPARE(gr->RowCount(), 1);
        });
        QVERIFY(nomencla.Ciudades(u"1"_s, db));
        QCOMPARE(filas(db, u"SELECT id, ciu FROM lsCiudades ORDER BY id, ciu"_s),
                 (QStringList{u"1|Quito"_s, u"2|Ambato"_s}));
    }

    // On a server of its own, stopped while the dialog is open.
    void servidor_detenido_y_de_vuelta()
    {
        QTemporaryDir dir(u"/tmp/nf-XXXXXX"_s);
        QVERIFY(privdb(u"start"_s, dir.path()));
        QSqlDatabase propia = QSqlDatabase::addDatabase(u"QMYSQL"_s, u"propia"_s);
        propia.setHostName(u"localhost"_s);
        propia.setUserName(u"root"_s);
        propia.setConnectOptions(u"UNIX_SOCKET="_s + dir.path() + u"/mysqld.sock"_s);
        QVERIFY(propia.open());
        ejecutarSql(propia, u"CREATE DATABASE nf;\nUSE nf;\nCREATE TABLE lsCiudades (id VARCHAR(20), ciu VARCHAR(25));\n"
                            "INSERT INTO lsCiudades VALUES ('1','Quito')"_s);
        propia.close();
        propia.setDatabaseName(u"nf"_s);
        QVERIFY(propia.open());
        Cajas cajas;
        alAbrir(u"frmLsCiudad"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* tx = control<QLineEdit>(d, u"Text1"_s);
            QCOMPARE(gr->RowCount(), 1);
            QVERIFY(privdb(u"stop"_s, dir.path()));
            teclear(tx, u"Tena"_s);
            tecla(tx, Qt::Key_Return);
            QCOMPARE(cajas.vistas.last().titulo, u"Error de base de datos"_s);
            QVERIFY(cajas.ultima().contains(u"No se pudo restablecer"_s));
            QCOMPARE(gr->RowCount(), 1);
            QVERIFY(d->isVisible());
            QVERIFY(privdb(u"start"_s, dir.path()));
            tecla(tx, Qt::Key_Return);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado correctamente!"_s);
            QCOMPARE(gr->RowCount(), 2);
        });
        QVERIFY(nomencla.Ciudades(u"1"_s, propia));
        QCOMPARE(filas(propia, u"SELECT ciu FROM lsCiudades ORDER BY ciu"_s), (QStringList{u"Quito"_s, u"Tena"_s}));
        propia.close();
        QVERIFY(privdb(u"stop"_s, dir.path()));
    }
};

QTEST_MAIN(PruebaFallos)
#include "prueba_fallos.moc"
