// Faults while a dialog is open: the connection killed from another session,
// a row locked until the lock wait times out, the server stopped and started
// again; also in the middle of the multi-statement saves.
// Each time the failure is shown, nothing is half written, the dialog stays
// usable and the same operation works once the fault is gone. Also two
// clerks numbering keys with MAX(cod)+1 at the same time: no failure reaches
// them and no row is lost; and what is run again on which server error.
#include "tests/prueba_estructura.h"

#include "core/BaseDatos.h"
#include "core/Conflictos.h"
#include "core/Mensajes.h"

#include <QLineEdit>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QThread>

#include <atomic>
#include <thread>

using namespace Qt::StringLiterals;
using namespace prueba;
using namespace nomencla;

namespace {

bool privdb(const QString& orden, const QString& dir)
{
    QProcess p;
    p.start(QStringLiteral(NOMENCLA_FUENTES "/scripts/privdb"), {orden, dir});
    return p.waitForFinished(300000) && p.exitCode() == 0; // a new data directory is slow on a busy machine
}

// A server of its own in `dir`, started, with the schema in its database
// "nf"; the connection `nombre` to it, open (closed on failure).
QSqlDatabase servidorPropio(const QString& dir, const QString& nombre)
{
    if (!privdb(u"start"_s, dir))
        return QSqlDatabase::addDatabase(u"QMYSQL"_s, nombre);
    QSqlDatabase propia = conexion(nombre, dir + u"/mysqld.sock"_s);
    ejecutarSql(propia, u"CREATE DATABASE nf;\nUSE nf"_s);
    cargar(propia, "db/schema.sql");
    propia.close();
    propia.setDatabaseName(u"nf"_s);
    propia.open();
    return propia;
}

// Once a statement on `tabla` has waited for a second on the
// server behind `socket`, runs `accion` with the waiting session's id: from
// another thread, as the one waiting is the dialog's. `enEspera` tells
// whether the wait was seen.
std::thread alEsperarBloqueo(const QString& socket, const QString& base, const QString& tabla,
                             std::atomic<bool>& enEspera, std::function<void(QSqlQuery&, qint64)> accion)
{
    return std::thread([socket, base, tabla, &enEspera, accion = std::move(accion)] {
        {
            QSqlDatabase vigia = conexion(u"vigia"_s, socket, base);
            qint64 sesion = -1;
            // SHOW PROCESSLIST rather than its information_schema table: the
            // server's temporary tables for the latter, polled while other
            // tests read information_schema, have brought the server down.
            if (vigia.isOpen()) {
                QSqlQuery q(vigia);
                for (int i = 0; i < 250 && sesion < 0; ++i) {
                    if (q.exec(u"SHOW FULL PROCESSLIST"_s)) {
                        while (q.next())
                            if (q.value(u"db"_s).toString() == base && q.value(u"Time"_s).toInt() >= 1
                                && q.value(u"Info"_s).toString().contains(tabla, Qt::CaseInsensitive)
                                && !q.value(u"Info"_s).toString().startsWith(u"SHOW"_s))
                                sesion = q.value(u"Id"_s).toLongLong();
                    }
                    if (sesion < 0)
                        QThread::msleep(100);
                }
            }
            enEspera = sesion >= 0;
            QSqlQuery q(vigia);
            accion(q, sesion);
            vigia.close();
        }
        QSqlDatabase::removeDatabase(u"vigia"_s);
    });
}

// Matar: before the operation; MatarEnEspera: while its second statement
// waits for rows that `sql` locks, the first one done.
enum Falla { Matar, MatarEnEspera, Bloquear };

using Pasos = std::function<void(QWidget*)>;

struct Caso {
    QByteArray nombre;
    QString forma;
    Metodo metodo;
    Falla falla;
    QString sql; // the rows the second statement needs
    Pasos preparar;
    Pasos actuar;
    bool pregunta; // answered Yes
    QStringList vista; // the rows the operation touches
    QString exito; // its last box once the fault is gone ("" for none of its own)
    QStringList despues; // those rows then (empty: as before)
    std::function<bool(QWidget*)> hecho = [](QWidget*) { return true; };
};

Alfarje* grilla(QWidget* d, const QString& nombre = u"GR"_s)
{
    return control<Alfarje>(d, nombre);
}

Pasos elegir(const QString& texto)
{
    return [texto](QWidget* d) { dobleClic(grilla(d), filaCon(grilla(d), texto)); };
}

Pasos boton(int i)
{
    return [i](QWidget* d) { pulsar(d, u"Bt(%1)"_s.arg(i)); };
}

// A place waiting for the new zone: name, Enter, Enter.
void lugar(QWidget* d, const QString& nombre)
{
    tx(d, 2)->setFocus();
    tx(d, 2)->insert(nombre);
    tecla(tx(d, 2), Qt::Key_Return);
    tecla(tx(d, 3), Qt::Key_Return);
}

const QString quitada = u"La operación se realizó correctamente!"_s;
const QStringList empresa{u"SELECT cod,emp,est FROM empresas ORDER BY cod"_s,
                          u"SELECT id,nom,emp FROM Sucursales ORDER BY nom"_s};
const QStringList zonas{u"SELECT id,cod,zon,est FROM mZonaClie ORDER BY id,cod"_s,
                        u"SELECT id,zon,lug,ord FROM mZonaLugar ORDER BY id,zon,lug"_s,
                        u"SELECT id,nom,zon,lug FROM mCliente ORDER BY nom"_s};
const QStringList zonasAntes{
    u"1|1|Norte|1"_s, u"1|2|Sur|1"_s, u"1|4|Este|1"_s, u"1|5|Vieja|0"_s, u"2|1|Norte|1"_s, u"1|1|Carcelén|1"_s,
    u"1|1|Cotocollao|2"_s, u"1|2|Solanda|1"_s, u"1|4|Puembo|1"_s, u"2|1|Carcelén|1"_s, u"1|A|1|Carcelén"_s,
    u"1|B|2|Carcelén"_s, u"2|C|1|Carcelén"_s, u"1|D|2|Solanda"_s};

QStringList cambiar(QStringList filas, const QList<std::pair<int, QString>>& cambios)
{
    for (const auto& [i, texto] : cambios)
        filas[i] = texto;
    return filas;
}

const QList<Caso>& casos()
{
    static const QList<Caso> lista = [] {
    QList<Caso> l{
        {"empresa: rellenar, conexion matada", u"frmEmpresas"_s, &clsNomencla::Empresas, Matar, {},
         [](QWidget*) {}, elegir(u"Comercial Dos"_s), false, empresa, {}, {},
         [](QWidget* d) { return tx(d, 0)->text() == u"Comercial Dos"_s; }},
        {"empresa: sucursales bloqueadas entre las dos sentencias", u"frmEmpresas"_s, &clsNomencla::Empresas, Bloquear,
         u"SELECT * FROM Sucursales WHERE emp='Comercial Dos' FOR UPDATE"_s,
         [](QWidget* d) { elegir(u"Comercial Dos"_s)(d); tx(d, 0)->setText(u"Comercial Tres"_s); }, boton(0), false,
         empresa, guardada,
         {u"1|Andina Matriz|1"_s, u"2|Comercial Tres|1"_s, u"5|Comercial Dos|1"_s, u"1|A|Comercial Tres"_s,
          u"1|B|Comercial Tres"_s, u"2|D|Comercial Dos"_s}},
        {"zona: quitar, conexion matada", u"frmLsZona"_s, &clsNomencla::ZonaClientes, Matar, {},
         elegir(u"Este"_s), boton(1), true, zonas, quitada, cambiar(zonasAntes, {{2, u"1|4|Este|0"_s}})},
        {"zona nueva: lugares bloqueados tras la zona", u"frmLsZona"_s, &clsNomencla::ZonaClientes, Bloquear,
         u"SELECT * FROM mZonaLugar FOR UPDATE"_s,
         [](QWidget* d) {
             teclear(tx(d, 0), u"Oriente"_s);
             lugar(d, u"Puyo"_s);
             lugar(d, u"Tena"_s);
         },
         boton(0), false, zonas, guardada,
         QStringList{zonasAntes.mid(0, 4)} << u"1|6|Oriente|1"_s << zonasAntes.mid(4, 5) << u"1|6|Puyo|0"_s
                                           << u"1|6|Tena|0"_s << zonasAntes.mid(9)},
        {"lugar: clientes bloqueados tras el lugar", u"frmLsZona"_s, &clsNomencla::ZonaClientes, Bloquear,
         u"SELECT * FROM mCliente WHERE zon=1 FOR UPDATE"_s,
         [](QWidget* d) {
             elegir(u"Norte"_s)(d);
             clic(d, u"GR2"_s, 0);
             QCOMPARE(tx(d, 2)->text(), u"Carcelén"_s);
             tx(d, 2)->setText(u"Carcelén Alto"_s);
             tx(d, 3)->setText(u"4"_s);
         },
         boton(5), false, zonas, u"La información se ha guardado con éxito en la base de datos!"_s,
         cambiar(zonasAntes, {{5, u"1|1|Carcelén Alto|4"_s}, {10, u"1|A|1|Carcelén Alto"_s}})},
        {"categoria: guardar, conexion matada", u"frmLsCategorias"_s, &clsNomencla::CategoriaClientes, Matar, {},
         [](QWidget* d) { tx(d, 0)->setText(u"Minorista"_s); }, boton(0), false,
         {u"SELECT id,cod,cat,est FROM mCatClie ORDER BY id,cod"_s}, guardada,
         {u"1|1|Mayorista|1"_s, u"1|2|Minorista|1"_s, u"2|1|Mayorista|1"_s}},
    };
    // Each multi-statement save again, its connection killed while the second statement waits.
    for (qsizetype i = 0, n = l.size(); i < n; ++i) {
        if (l[i].falla != Bloquear)
            continue;
        Caso otro = l[i];
        otro.nombre += " (conexion matada en la espera)";
        otro.falla = MatarEnEspera;
        l.append(otro);
    }
    l.append({"ciudad: quitar, fila bloqueada", u"frmLsCiudad"_s, &clsNomencla::Ciudades, Bloquear,
              u"SELECT * FROM lsCiudades WHERE id='1' FOR UPDATE"_s,
              [](QWidget* d) { teclear(control<QLineEdit>(d, u"Text1"_s), u"amb"_s); }, boton(2), true,
              {u"SELECT id,ciu FROM lsCiudades ORDER BY id,ciu"_s}, quitada, {u"1|Quito"_s, u"2|Ambato"_s}});
    return l;
    }();
    return lista;
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

    void operacion_con_falla_data()
    {
        porCaso(casos(), [](const Caso& c) { return QString::fromUtf8(c.nombre); });
    }

    // The fault, the critical box, the rows as before; the fault gone, the same
    // operation in the same dialog works and writes all of it.
    void operacion_con_falla()
    {
        QFETCH(int, i);
        const Caso& c = casos()[i];
        ejecutarSql(db, u"INSERT INTO empresas (cod,id,emp,act,suc,selec,art,nart,dir,tel,ciu,prov,est) VALUES "
                        "(1,'1','Andina Matriz',0,1,1,0,'','d','1','Quito','Pichincha',1),"
                        "(2,'1','Comercial Dos',1,2,0,1,'','d','1','Ambato','Tungurahua',1),"
                        "(5,'2','Comercial Dos',0,1,0,0,'','d','1','Manta','Manabí',1);\n"
                        "INSERT INTO Sucursales (id,emp,ciu,nom,dir,tel,est) VALUES ('1','Comercial Dos','Ambato','A','d','1',1),"
                        "('1','Comercial Dos','Ambato','B','d','1',0),('2','Comercial Dos','Manta','D','d','1',1);\n"
                        "INSERT INTO mZonaClie (id,cod,zon,des,est) VALUES ('1',1,'Norte','',1),('1',2,'Sur','',1),"
                        "('1',5,'Vieja','',0),('1',4,'Este','',1),('2',1,'Norte','',1);\n"
                        "INSERT INTO mZonaLugar (id,zon,lug,ord,est) VALUES ('1',1,'Carcelén',1,1),('1',1,'Cotocollao',2,1),"
                        "('1',2,'Solanda',1,1),('1',4,'Puembo',1,1),('2',1,'Carcelén',1,1);\n"
                        "INSERT INTO mCliente (id,nom,zon,lug) VALUES ('1','A',1,'Carcelén'),('1','B',2,'Carcelén'),"
                        "('2','C',1,'Carcelén'),('1','D',2,'Solanda');\n"
                        "INSERT INTO mCatClie (id,cod,cat,des,est) VALUES ('1',1,'Mayorista','',1),('2',1,'Mayorista','',1);\n"
                        "SET SESSION innodb_lock_wait_timeout=1"_s);
        QSqlDatabase otra = otraConexion(db, u"otra"_s);
        const auto foto = [&] {
            QStringList r;
            for (const QString& sql : c.vista)
                r << filas(db, sql);
            return r;
        };
        QStringList antes;
        bool visto = false;
        Cajas cajas;
        const auto actuar = [&](QWidget* d) {
            cajas.limpiar();
            if (c.pregunta)
                cajas.responder(QMessageBox::Yes);
            c.actuar(d);
        };
        alAbrir(c.forma, [&](QWidget* d) {
            d->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(d));
            c.preparar(d);
            antes = foto();
            std::atomic<bool> enEspera = false;
            std::thread matar;
            if (c.falla == Matar) {
                ejecutarSql(otra, u"KILL CONNECTION "_s + valor(db, u"SELECT CONNECTION_ID()"_s).toString());
            } else if (c.falla == Bloquear) {
                ejecutarSql(otra, u"START TRANSACTION;\n"_s + c.sql);
            } else if (c.falla == MatarEnEspera) {
                ejecutarSql(db, u"SET SESSION innodb_lock_wait_timeout=30"_s);
                ejecutarSql(otra, u"START TRANSACTION;\n"_s + c.sql);
                const QString tabla = QRegularExpression(u"FROM (\\w+)"_s).match(c.sql).captured(1);
                matar = alEsperarBloqueo(socketServidor(), db.databaseName(), tabla, enEspera, [](QSqlQuery& q, qint64 s) {
                    if (s >= 0)
                        q.exec(u"KILL CONNECTION "_s + QString::number(s));
                });
            }
            actuar(d);
            if (matar.joinable()) {
                matar.join();
                QVERIFY(enEspera); // killed between the statements
            }
            if (c.falla != Matar)
                ejecutarSql(otra, u"ROLLBACK"_s);
            QVERIFY(!cajas.vistas.isEmpty());
            QCOMPARE(cajas.vistas.last().titulo, u"Error de base de datos"_s);
            QCOMPARE(cajas.vistas.last().icono, QMessageBox::Critical);
            QCOMPARE(cajas.ultima().contains(u"se restableció"_s), c.falla == Matar || c.falla == MatarEnEspera);
            QCOMPARE(cajas.ultima().contains(u"1205"_s), c.falla == Bloquear); // the lock wait, not the first statement
            QVERIFY(d->isVisible());
            QCOMPARE(foto(), antes); // read on the dialog's own connection: no open transaction left
            actuar(d);
            if (!c.exito.isEmpty())
                QCOMPARE(cajas.ultima(), c.exito);
            for (const Caja& vista : std::as_const(cajas.vistas))
                QVERIFY2(vista.titulo != u"Error de base de datos"_s, qPrintable(vista.texto));
            QVERIFY(c.hecho(d));
            visto = true;
        });
        (nomencla.*c.metodo)(u"1"_s, db);
        QVERIFY(visto);
        QCOMPARE(foto(), c.despues.isEmpty() ? antes : c.despues);
    }

    // On a server of its own, stopped while the dialog is open: before a
    // save, a removal, the fill at the opening, and between the two
    // statements of a company rename (the branches locked by another clerk).
    // Each time the box, nothing kept; back again, the same operation works.
    void servidor_detenido()
    {
        QTemporaryDir dir(u"/tmp/nf-XXXXXX"_s);
        QSqlDatabase propia = servidorPropio(dir.path(), u"propia"_s);
        QVERIFY(propia.isOpen());
        ejecutarSql(propia, u"INSERT INTO lsCiudades (id,ciu) VALUES ('1','Quito');\n"
                            "INSERT INTO empresas (cod,id,emp,suc,dir,tel,ciu,prov) VALUES "
                            "(1,'1','Matriz',1,'d','1','c','p'),(2,'1','Comercial Dos',1,'d','1','c','p');\n"
                            "INSERT INTO Sucursales (id,emp,nom) VALUES ('1','Comercial Dos','A'),('1','Comercial Dos','B')"_s);
        const auto parar = [&] { QVERIFY(privdb(u"stop"_s, dir.path())); };
        const auto arrancar = [&] { QVERIFY(privdb(u"start"_s, dir.path())); };
        Cajas cajas;
        const auto fallo = [&](QWidget* d) {
            QCOMPARE(cajas.vistas.last().titulo, u"Error de base de datos"_s);
            QVERIFY(cajas.ultima().contains(u"No se pudo restablecer"_s));
            QVERIFY(d->isVisible());
        };
        alAbrir(u"frmLsCiudad"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* tx = control<QLineEdit>(d, u"Text1"_s);
            parar();
            teclear(tx, u"Tena"_s);
            tecla(tx, Qt::Key_Return);
            fallo(d);
            QCOMPARE(gr->RowCount(), 1);
            arrancar();
            tecla(tx, Qt::Key_Return);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado correctamente!"_s);

            parar();
            teclear(tx, u"Ten"_s);
            QCOMPARE(gr->CellText(), u"Tena"_s);
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(2)"_s);
            fallo(d);
            QCOMPARE(gr->RowCount(), 2);
            arrancar();
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(2)"_s);
            QCOMPARE(cajas.ultima(), u"La operación se realizó correctamente!"_s);
        });
        QVERIFY(nomencla.Ciudades(u"1"_s, propia));
        QCOMPARE(filas(propia, u"SELECT ciu FROM lsCiudades"_s), QStringList{u"Quito"_s});

        parar();
        int filasVistas = -1;
        alAbrir(u"frmLsCiudad"_s, [&](QWidget* d) {
            filasVistas = control<Alfarje>(d, u"GR"_s)->RowCount();
            fallo(d);
        });
        QVERIFY(!nomencla.Ciudades(u"1"_s, propia));
        QCOMPARE(filasVistas, 0);
        arrancar();
        QVERIFY(propia.isOpen() || propia.open()); // given up by the failed reconnection

        const QString estructura = u"SELECT cod,emp FROM empresas UNION ALL SELECT nom,emp FROM Sucursales ORDER BY 1"_s;
        const QStringList antes = filas(propia, estructura);
        QStringList entonces;
        alAbrir(u"frmEmpresas"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            dobleClic(gr, filaCon(gr, u"Comercial Dos"_s));
            tx(d, 0)->setText(u"Comercial Tres"_s);
            {
                QSqlDatabase otra = QSqlDatabase::cloneDatabase(propia, u"otra2"_s);
                QVERIFY(otra.open());
                ejecutarSql(otra, u"START TRANSACTION;\nSELECT * FROM Sucursales FOR UPDATE"_s);
                std::atomic<bool> enEspera = false;
                std::thread detener = alEsperarBloqueo(dir.path() + u"/mysqld.sock"_s, u"nf"_s, u"sucursales"_s,
                                                       enEspera, [&](QSqlQuery&, qint64) { parar(); });
                pulsar(d, u"Bt(0)"_s);
                detener.join();
                QVERIFY(enEspera); // the company's statement done, the branches' waiting
            }
            QSqlDatabase::removeDatabase(u"otra2"_s);
            fallo(d);
            arrancar();
            QVERIFY(propia.open()); // the dialog's connection, given up by the failed reconnection
            entonces = filas(propia, estructura);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado con éxito!"_s);
        });
        nomencla.Empresas(u"1"_s, propia);
        QCOMPARE(entonces, antes);
        QCOMPARE(filas(propia, estructura), (QStringList{u"1|Matriz"_s, u"2|Comercial Tres"_s, u"A|Comercial Tres"_s,
                                                        u"B|Comercial Tres"_s}));
        propia.close();
        parar();
    }

    // Two clerks on one server numbering MAX(cod)+1 keys at once.
    void claves_al_mismo_tiempo()
    {
        constexpr int porEmpleado = 200;
        std::atomic<int> fallos{0};
        auto empleado = [&](int n) {
            {
                // Opened by the first statement; a refusal counts as a failure.
                QSqlDatabase propia = QSqlDatabase::cloneDatabase(db, u"empleado%1"_s.arg(n));
                auto insertar = [&](qint32 clave) {
                    ejecutar(propia, u"INSERT INTO mCatClie (id,cod,cat) VALUES ('1',?,?)"_s, {clave, u"Empleado %1"_s.arg(n)});
                };
                for (int i = 0; i < porEmpleado; ++i) {
                    try {
                        insertarConClaveSiguiente(propia, u"SELECT MAX(cod) FROM mCatClie WHERE id=?"_s, {u"1"_s}, insertar, 1000);
                    } catch (const ErrorBD& e) {
                        qWarning("%s", e.what());
                        ++fallos;
                    }
                }
            }
            QSqlDatabase::removeDatabase(u"empleado%1"_s.arg(n));
        };
        std::unique_ptr<QThread> a(QThread::create(empleado, 1)), b(QThread::create(empleado, 2));
        a->start();
        b->start();
        QVERIFY(a->wait(300000) && b->wait(300000));
        QCOMPARE(fallos.load(), 0);
        // As many rows as inserts, each with its own key, numbered without gaps.
        QCOMPARE(filas(db, u"SELECT COUNT(*), COUNT(DISTINCT cod), MAX(cod) FROM mCatClie WHERE id='1'"_s),
                 QStringList{u"%1|%1|%1"_s.arg(2 * porEmpleado)});
    }

    void reintentos_data()
    {
        QTest::addColumn<QString>("codigo");
        QTest::addColumn<bool>("claveNumerada"); // thrown as insertarConClaveSiguiente gives up
        QTest::addColumn<int>("fallos");         // before the run that works
        QTest::addColumn<int>("corridas");       // runs made
        QTest::addColumn<QString>("caja");       // the start of the box's text when it fails ("" when it does not)
        QTest::newRow("deadlock, then done") << u"1213"_s << false << 3 << 4 << QString();
        QTest::newRow("deadlock every time") << u"1213"_s << false << 99 << intentosPorConflicto << u"Otros usuarios"_s;
        QTest::newRow("numbered key taken, then done") << u"1062"_s << true << 2 << 3 << QString();
        QTest::newRow("duplicate of the data") << u"1062"_s << false << 99 << 1 << u"driver"_s;
        QTest::newRow("node out of the group") << u"1047"_s << false << 99 << 1 << u"El servidor de la base"_s;
        QTest::newRow("lock wait timeout") << u"1205"_s << false << 99 << 1 << u"driver"_s;
    }

    // What is run again and what is shown, as the server's code says.
    void reintentos()
    {
        QFETCH(QString, codigo);
        QFETCH(bool, claveNumerada);
        QFETCH(int, fallos);
        QFETCH(int, corridas);
        QFETCH(QString, caja);
        const ErrorBD error(QSqlError(u"driver"_s, codigo == u"1062"_s ? u"Duplicate entry"_s : u"Lock wait or other"_s,
                                      QSqlError::StatementError, codigo));
        int n = 0;
        Cajas cajas;
        try {
            conReintentos([&] {
                if (++n <= fallos) {
                    if (claveNumerada)
                        throw ClaveTomada(error);
                    throw error;
                }
            });
            QVERIFY(caja.isEmpty());
        } catch (const ErrorBD& e) {
            mostrarErrorBD(nullptr, e);
            QVERIFY2(cajas.ultima().startsWith(caja) && !caja.isEmpty(), qPrintable(cajas.ultima()));
        }
        QCOMPARE(n, corridas);
    }
};

QTEST_MAIN(PruebaFallos)
#include "prueba_fallos.moc"
