// The dialogs on a Galera cluster of three nodes (scripts/privcluster), each
// clerk on a node of its own: the saves that meet on the same rows or the
// same MAX(cod)+1 key are run again and none fails; every operation is whole
// or absent; every node ends with the same rows; a node killed in the middle
// of a save loses nothing on the others, comes back by IST and takes the
// next save. The clerks working at the same time are copies of this program
// (each a dialog of its own, as on separate machines), started with
// "oficinista" as their first argument.
#include "tests/prueba_estructura.h"

#include "core/Conflictos.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSqlError>

#include <thread>

using namespace Qt::StringLiterals;
using namespace prueba;
using nomencla::Alfarje;

namespace {

const QString base = u"t_cluster"_s;

// Runs scripts/privcluster on the test cluster; its output in `salida`.
bool privcluster(const QStringList& argumentos, QString* salida = nullptr)
{
    QProcess p;
    p.start(QStringLiteral(NOMENCLA_FUENTES "/scripts/privcluster"),
            QStringList{argumentos.first(), QStringLiteral(NOMENCLA_CLUSTER)} + argumentos.mid(1));
    const bool bien = p.waitForFinished(180000) && p.exitCode() == 0;
    if (salida)
        *salida = QString::fromLocal8Bit(p.readAllStandardOutput());
    return bien;
}

QString socketDe(int nodo)
{
    static const QStringList sockets = [] {
        QString salida;
        privcluster({u"sockets"_s}, &salida);
        return salida.split(u'\n', Qt::SkipEmptyParts);
    }();
    return sockets.value(nodo - 1);
}

// A connection `nombre` to the node's copy of the test database.
QSqlDatabase conectarNodo(int nodo, const QString& nombre) { return conexion(nombre, socketDe(nodo), base); }

// What a node holds, read once it has applied every write committed in the
// cluster before the read.
QStringList contenido(int nodo, const QStringList& consultas)
{
    QStringList r;
    {
        QSqlDatabase db = conectarNodo(nodo, u"lectura"_s);
        ejecutarSql(db, u"SET SESSION wsrep_sync_wait=1"_s);
        for (const QString& sql : consultas)
            r << filas(db, sql);
        db.close();
    }
    QSqlDatabase::removeDatabase(u"lectura"_s);
    return r;
}

// The rows of the tables the clerks write, and their checksums.
const QStringList tablas{u"SELECT id,cod,emp,est FROM empresas ORDER BY cod"_s,
                         u"SELECT cod,id,emp,nom FROM Sucursales ORDER BY cod"_s,
                         u"SELECT id,cod,zon,est FROM mZonaClie ORDER BY id,cod"_s,
                         u"SELECT cod,id,zon,lug,est FROM mZonaLugar ORDER BY cod"_s,
                         u"SELECT cod,id,nom,zon,lug FROM mCliente ORDER BY cod"_s,
                         u"SELECT id,cod,cat FROM mCatClie ORDER BY id,cod"_s,
                         u"CHECKSUM TABLE mCatClie, empresas, Sucursales, mZonaClie, mZonaLugar, mCliente"_s};

// Every node holds the same rows; node 1's in `filasNodo1`.
bool igualesEnTodos(QStringList* filasNodo1 = nullptr)
{
    const QStringList uno = contenido(1, tablas);
    if (filasNodo1)
        *filasNodo1 = uno;
    return contenido(2, tablas) == uno && contenido(3, tablas) == uno;
}

// Tx(0) given `texto`, then the save button.
void guardarCon(QWidget* d, const QString& texto)
{
    tx(d, 0)->setText(texto);
    pulsar(d, u"Bt(0)"_s);
}

// One clerk's work: the dialog `forma`, opened by `metodo` with the clerk's
// connection, and `paso` done in it `veces` times; what differs between
// clerks is n.
struct Trabajo {
    QString forma;
    Metodo metodo;
    std::function<void(QWidget* d, int n, int i)> paso;
};

const QMap<QString, Trabajo> trabajos{
    {u"categorias"_s,
     {u"frmLsCategorias"_s, &clsNomencla::CategoriaClientes,
      [](QWidget* d, int n, int i) { guardarCon(d, u"Oficinista %1 categoría %2"_s.arg(n).arg(i)); }}},
    // Company 2 renamed with its branches, picked afresh before each rename.
    {u"empresa"_s,
     {u"frmEmpresas"_s, &clsNomencla::Empresas,
      [](QWidget* d, int n, int i) {
          auto* gr = control<Alfarje>(d, u"GR"_s);
          dobleClic(gr, filaCon(gr, u"2"_s, 6));
          guardarCon(d, u"Comercial %1-%2"_s.arg(n).arg(i));
      }}},
    // The place of zone Norte renamed with its customers.
    {u"lugar"_s,
     {u"frmLsZona"_s, &clsNomencla::ZonaClientes,
      [](QWidget* d, int n, int i) {
          auto* gr = control<Alfarje>(d, u"GR"_s);
          dobleClic(gr, filaCon(gr, u"Norte"_s));
          clic(d, u"GR2"_s, 0);
          if (tx(d, 2)->text().isEmpty())
              qWarning("no place picked");
          tx(d, 2)->setText(u"Lugar %1-%2"_s.arg(n).arg(i));
          tx(d, 3)->setText(u"1"_s);
          pulsar(d, u"Bt(5)"_s);
      }}},
    // A new zone with two places, in one save.
    {u"zonas"_s,
     {u"frmLsZona"_s, &clsNomencla::ZonaClientes,
      [](QWidget* d, int n, int i) {
          tx(d, 0)->setText(u"Zona %1-%2"_s.arg(n).arg(i));
          for (const char* letra : {"a", "b"}) {
              tx(d, 2)->setFocus();
              tx(d, 2)->setText(u"Lugar %1-%2%3"_s.arg(n).arg(i).arg(QLatin1String(letra)));
              tecla(tx(d, 2), Qt::Key_Return);
              tecla(tx(d, 3), Qt::Key_Return);
          }
          pulsar(d, u"Bt(0)"_s);
      }}},
};

// The clerk's process: "oficinista TRABAJO NODO N VECES". Prints the error
// boxes it met and the conflicts the library ran again.
int oficinista(int argc, char** argv)
{
    QApplication app(argc, argv);
    const QStringList a = app.arguments();
    int errores = 0;
    {
        QSqlDatabase db = conectarNodo(a.value(3).toInt(), u"oficinista"_s);
        clsNomencla biblioteca;
        Cajas cajas;
        const Trabajo t = trabajos.value(a.value(2));
        const int n = a.value(4).toInt(), veces = a.value(5).toInt();
        alAbrir(t.forma, [&](QWidget* d) {
            for (int i = 0; i < veces; ++i)
                t.paso(d, n, i);
        });
        (biblioteca.*t.metodo)(u"1"_s, db);
        for (const Caja& c : std::as_const(cajas.vistas))
            if (c.titulo == u"Error de base de datos"_s) {
                ++errores;
                fprintf(stderr, "%s\n", qPrintable(c.texto));
            }
        printf("errores=%d conflictos=%llu\n", errores, static_cast<unsigned long long>(nomencla::conflictosVistos()));
    }
    return 0;
}

struct Resultado {
    int errores = 0;
    quint64 conflictos = 0;
};

// Clerks at the same time, clerk n on node `nodos[n]`.
Resultado aLaVez(const QString& trabajo, const QList<int>& nodos, int veces)
{
    std::vector<std::unique_ptr<QProcess>> procesos;
    QProcessEnvironment entorno = QProcessEnvironment::systemEnvironment();
    entorno.insert(u"QT_LOGGING_RULES"_s, u"default.warning=false"_s); // not the offscreen warning at every box
    for (int n = 0; n < nodos.size(); ++n) {
        auto p = std::make_unique<QProcess>();
        p->setProcessChannelMode(QProcess::ForwardedErrorChannel);
        p->setProcessEnvironment(entorno);
        p->start(QCoreApplication::applicationFilePath(),
                 {u"oficinista"_s, trabajo, QString::number(nodos[n]), QString::number(n + 1), QString::number(veces)});
        procesos.push_back(std::move(p));
    }
    Resultado r;
    for (auto& p : procesos) {
        const bool fin = p->waitForFinished(400000) && p->exitCode() == 0;
        const QString salida = QString::fromLocal8Bit(p->readAllStandardOutput());
        const auto m = QRegularExpression(u"errores=(\\d+) conflictos=(\\d+)"_s).match(salida);
        r.errores += fin && m.hasMatch() ? m.captured(1).toInt() : 1000;
        r.conflictos += m.captured(2).toULongLong();
    }
    return r;
}

} // namespace

class PruebaCluster : public QObject {
    Q_OBJECT
    QSqlDatabase db; // node 1
    clsNomencla biblioteca;

private Q_SLOTS:
    void init()
    {
        qputenv("NOMENCLA_TEST_SOCKET", socketDe(1).toLocal8Bit());
        db = baseNueva(base);
        ejecutarSql(db, u"INSERT INTO empresas (cod,id,emp,suc,dir,tel,ciu,prov,est) VALUES "
                        "(1,'1','Andina Matriz',1,'d','1','c','p',1),(2,'1','Comercial Dos',3,'d','1','c','p',1);\n"
                        "INSERT INTO Sucursales (id,emp,ciu,nom,dir,tel,est) VALUES ('1','Comercial Dos','Ambato','A','d','1',1),"
                        "('1','Comercial Dos','Ambato','B','d','1',1),('1','Comercial Dos','Manta','C','d','1',1);\n"
                        "INSERT INTO mZonaClie (id,cod,zon,des,est) VALUES ('1',1,'Norte','',1);\n"
                        "INSERT INTO mZonaLugar (id,zon,lug,ord,est) VALUES ('1',1,'Carcelén',1,1);\n"
                        "INSERT INTO mCliente (id,nom,zon,lug) VALUES ('1','A',1,'Carcelén'),('1','B',1,'Carcelén'),"
                        "('1','C',2,'Carcelén')"_s);
        // The other nodes have the schema and the rows before a clerk starts.
        for (int nodo = 2; nodo <= 3; ++nodo)
            QVERIFY(!contenido(nodo, {u"SELECT COUNT(*) FROM Sucursales"_s}).isEmpty());
    }

    // Three clerks, one a node, each adding 200 customer categories: none
    // sees an error, every key is unique, nothing is lost, all nodes agree.
    void claves_en_tres_nodos()
    {
        constexpr int veces = 200;
        const Resultado r = aLaVez(u"categorias"_s, {1, 2, 3}, veces);
        qInfo("3 clerks x %d saves: %llu conflicts run again", veces, static_cast<unsigned long long>(r.conflictos));
        QCOMPARE(r.errores, 0);
        QCOMPARE(contenido(2, {u"SELECT COUNT(*), COUNT(DISTINCT cod), MAX(cod), COUNT(DISTINCT cat) FROM mCatClie"_s}),
                 QStringList{u"600|600|600|600"_s});
        QStringList filasNodo1;
        QVERIFY(igualesEnTodos(&filasNodo1));
        QCOMPARE(filasNodo1.filter(u"categoría"_s).size(), 3 * veces);
    }

    void a_la_vez_en_dos_nodos_data()
    {
        QTest::addColumn<QString>("trabajo");
        QTest::addColumn<QStringList>("invariante"); // each row: the count of rows breaking it, "0"
        QTest::newRow("empresa con sus sucursales")
            << u"empresa"_s
            << QStringList{u"SELECT COUNT(*) FROM Sucursales s JOIN empresas e ON e.cod=2 WHERE s.emp<>e.emp"_s,
                           u"SELECT 3-COUNT(*) FROM Sucursales"_s};
        QTest::newRow("lugar con sus clientes")
            << u"lugar"_s
            << QStringList{u"SELECT COUNT(*) FROM mCliente c JOIN mZonaLugar l ON l.zon=1 WHERE c.zon=1 AND c.lug<>l.lug"_s,
                           u"SELECT 1-COUNT(*) FROM mZonaLugar"_s,
                           u"SELECT COUNT(*) FROM mCliente WHERE zon=2 AND lug<>'Carcelén'"_s};
        QTest::newRow("zona con sus lugares")
            << u"zonas"_s
            << QStringList{u"SELECT 2*40-COUNT(*) FROM mZonaClie WHERE zon LIKE 'Zona %'"_s,
                           u"SELECT COUNT(*) FROM mZonaClie z WHERE zon LIKE 'Zona %' AND 2<>(SELECT COUNT(*) FROM "
                           "mZonaLugar l WHERE l.zon=z.cod AND l.lug LIKE CONCAT('Lugar ', SUBSTRING(z.zon,6), '_'))"_s,
                           u"SELECT COUNT(*)-COUNT(DISTINCT cod) FROM mZonaClie"_s};
    }

    // The multi-statement saves, two clerks on two nodes over the same rows:
    // every save ends whole, none is shown an error, the nodes agree.
    void a_la_vez_en_dos_nodos()
    {
        QFETCH(QString, trabajo);
        QFETCH(QStringList, invariante);
        const Resultado r = aLaVez(trabajo, {1, 2}, trabajo == u"zonas"_s ? 40 : 25);
        qInfo("%s: %llu conflicts run again", qPrintable(trabajo), static_cast<unsigned long long>(r.conflictos));
        QCOMPARE(r.errores, 0);
        for (int nodo = 1; nodo <= 3; ++nodo)
            QCOMPARE(contenido(nodo, invariante), QStringList(invariante.size(), u"0"_s));
        QVERIFY(igualesEnTodos());
    }

    // Node 3 killed while a company rename saves through it (its branches
    // held by another session of that node, the company already written):
    // the error box, the dialog still there, nothing of the rename on the
    // others; node 3 back by IST with what was written meanwhile, and the
    // same save through it works.
    void nodo_matado_en_un_guardado()
    {
        const QString dir = QStringLiteral(NOMENCLA_CLUSTER);
        QSqlDatabase d3 = conectarNodo(3, u"dialogo"_s);
        QSqlDatabase otra = conectarNodo(3, u"otra"_s);
        QStringList antes;
        QVERIFY(igualesEnTodos(&antes));
        Cajas cajas;
        bool visto = false;
        alAbrir(u"frmEmpresas"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            dobleClic(gr, filaCon(gr, u"Comercial Dos"_s));
            tx(d, 0)->setText(u"Comercial Tres"_s);
            ejecutarSql(otra, u"START TRANSACTION;\nSELECT * FROM Sucursales FOR UPDATE"_s);
            std::thread matar([] {
                std::this_thread::sleep_for(std::chrono::milliseconds(1500));
                privcluster({u"kill"_s, u"3"_s});
            });
            pulsar(d, u"Bt(0)"_s);
            matar.join();
            QVERIFY(!cajas.vistas.isEmpty());
            QCOMPARE(cajas.vistas.last().titulo, u"Error de base de datos"_s);
            QVERIFY(cajas.ultima().contains(u"Se perdió la conexión"_s));
            QVERIFY(d->isVisible());
            for (int nodo = 1; nodo <= 2; ++nodo)
                QCOMPARE(contenido(nodo, tablas), antes);

            // Written while node 3 is away, brought to it by IST.
            ejecutarSql(db, u"INSERT INTO mCatClie (id,cod,cat) VALUES ('1',1,'Mientras tanto')"_s);
            QFile log(dir + u"/node3/error.log"_s);
            const qint64 hasta = log.size();
            QVERIFY(privcluster({u"rejoin"_s, u"3"_s}));
            QVERIFY(log.open(QIODevice::ReadOnly) && log.seek(hasta));
            const QByteArray vuelta = log.readAll();
            QVERIFY(vuelta.contains("Running IST") && vuelta.contains("IST received") && !vuelta.contains("Proceeding with SST"));

            cajas.limpiar();
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), guardada);
            visto = true;
        });
        biblioteca.Empresas(u"1"_s, d3);
        QVERIFY(visto);
        QStringList despues;
        QVERIFY(igualesEnTodos(&despues));
        QVERIFY(despues.contains(u"1|2|Comercial Tres|1"_s));
        QCOMPARE(despues.filter(u"|1|Comercial Tres|"_s).size(), 3); // the branches
        QVERIFY(despues.contains(u"1|1|Mientras tanto"_s));
        d3.close();
        otra.close();
    }

    // Node 3 cut off from the others (not in the primary component): its
    // save is refused with 1047 and shown, not run again; nothing is written.
    void nodo_fuera_del_grupo()
    {
        QSqlDatabase d3 = conectarNodo(3, u"dialogo"_s);
        ejecutarSql(d3, u"SET GLOBAL wsrep_provider_options='gmcast.isolate=1'"_s);
        QTRY_COMPARE_WITH_TIMEOUT(valor(d3, u"SELECT VARIABLE_VALUE FROM information_schema.GLOBAL_STATUS "
                                           "WHERE VARIABLE_NAME='WSREP_CLUSTER_STATUS'"_s).toString(),
                                  u"non-Primary"_s, 20000);
        Cajas cajas;
        alAbrir(u"frmLsCategorias"_s, [&](QWidget* d) {
            tx(d, 0)->setText(u"Aislada"_s);
            pulsar(d, u"Bt(0)"_s);
        });
        biblioteca.CategoriaClientes(u"1"_s, d3);
        ejecutarSql(d3, u"SET GLOBAL wsrep_provider_options='gmcast.isolate=0'"_s);
        // The list at the opening, then the save: each refused and shown once.
        QCOMPARE(cajas.vistas.size(), 2);
        for (const Caja& c : std::as_const(cajas.vistas)) {
            QCOMPARE(c.titulo, u"Error de base de datos"_s);
            QVERIFY2(c.texto.contains(u"(1047)"_s) && c.texto.contains(u"se separó"_s), qPrintable(c.texto));
        }
        QTRY_VERIFY_WITH_TIMEOUT(privcluster({u"status"_s}), 60000);
        QCOMPARE(contenido(1, {u"SELECT COUNT(*) FROM mCatClie"_s}), QStringList{u"0"_s});
        d3.close();
    }
};

int main(int argc, char** argv)
{
    if (argc > 1 && qstrcmp(argv[1], "oficinista") == 0)
        return oficinista(argc, argv);
    QApplication app(argc, argv);
    PruebaCluster prueba;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&prueba, argc, argv);
}

#include "prueba_cluster.moc"
