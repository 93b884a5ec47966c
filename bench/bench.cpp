// Measures the list grid on a private MariaDB server:
//   (a) a bare forward-only query reading every field (the floor),
//   (b) the same query loaded into the grid,
//   (c) the same rows in a QTableWidget with one item per cell,
//   (d) search as the user types, per keystroke,
//   (e, f) first paint and closing of a real dialog (medirDialogo),
//   (g) peak memory of (a) and (b), each in a process of its own,
//   (h) export to CSV of 100,000 rows against their fill (medirExportacion).
// Usage: nomencla-bench --socket PATH [--max N] [--reps R] [--naive-max N]
//        nomencla-bench --socket PATH --operaciones [--reps R] [--vecinos-grandes N] [--sin-1m-grandes]
//        (the operations of a dialog as the tenants grow: bench/operaciones.cpp)
// With --cluster NODE_SOCKET it measures instead a save and a list fill on
// the server of --socket and on the cluster node, as a ratio (medirCluster).
#include "core/Alfarje.h"
#include "core/BaseDatos.h"
#include "core/Conflictos.h"
#include "core/clsGrillas.h"
#include "core/ExportarGrilla.h"
#include "core/ModeloAlfarje.h"
#include "core/Plegado.h"

#include "bench/cronometro.h"
#include "bench/operaciones.h"

#include <nomencla/clsNomencla.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <QProcess>
#include <QTimer>
#include <QRandomGenerator>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTableWidget>

#include <algorithm>
#include <cstdio>
#include <vector>

using namespace Qt::StringLiterals;
using nomencla::Alfarje;

namespace {

struct Conjunto {
    const char* nombre;
    QString sql;
    int campos;
};

const Conjunto kTexto{"texto", u"SELECT ciu FROM lsCiudades WHERE id=? ORDER BY ciu"_s, 1};
const Conjunto kMixto{"mixto", u"SELECT cod, lot, can, fec, est FROM martexpira WHERE bod=? ORDER BY cod"_s, 5};

QString g_socket;

[[noreturn]] void fallar(const QString& que, const QSqlError& e)
{
    std::fprintf(stderr, "%s: %s\n", qPrintable(que), qPrintable(e.text()));
    std::exit(2);
}

QSqlDatabase conectar(const QString& base)
{
    QSqlDatabase bd = QSqlDatabase::addDatabase(u"QMYSQL"_s, u"bench"_s);
    bd.setHostName(u"localhost"_s);
    bd.setConnectOptions(u"UNIX_SOCKET="_s + g_socket);
    bd.setUserName(u"root"_s);
    bd.setDatabaseName(base);
    if (!bd.open())
        fallar(u"conexión"_s, bd.lastError());
    return bd;
}

void ejecutar(QSqlDatabase& bd, const QString& sql)
{
    QSqlQuery q(bd);
    if (!q.exec(sql))
        fallar(sql, q.lastError());
}

qint64 contar(QSqlDatabase& bd, const QString& sql)
{
    QSqlQuery q(bd);
    if (!q.exec(sql) || !q.next())
        return -1;
    return q.value(0).toLongLong();
}

// The lists of every size live in the same tables, told apart by id / bod.
void prepararDatos(QSqlDatabase& bd, const std::vector<int>& tamanos)
{
    ejecutar(bd, u"CREATE TABLE IF NOT EXISTS lsCiudades (id VARCHAR(20) NOT NULL, ciu VARCHAR(25),"
                 " KEY (id, ciu)) ENGINE=InnoDB"_s);
    ejecutar(bd, u"CREATE TABLE IF NOT EXISTS martexpira (cod INT, art INT, bod INT, lot VARCHAR(25),"
                 " can DECIMAL(12,2), fec DATE, pro INT, est INT, KEY (bod, cod)) ENGINE=InnoDB"_s);
    for (int n : tamanos) {
        const QString id = QString::number(n);
        if (contar(bd, u"SELECT COUNT(*) FROM lsCiudades WHERE id='%1'"_s.arg(id)) != n) {
            ejecutar(bd, u"DELETE FROM lsCiudades WHERE id='%1'"_s.arg(id));
            // City-like names out of syllables, some with accented capitals.
            ejecutar(bd, uR"(INSERT INTO lsCiudades (id, ciu) SELECT '%1', CONCAT(
                ELT(1 + seq %% 20, 'Á','Ca','Qui','Gua','Sa','Ma','Lo','Pe','Ri','Ta',
                    'É','Chi','Na','Po','Cu','Za','Ña','Ve','Yu','Ba'),
                ELT(1 + (seq DIV 20) %% 15, 'ra','lo','mé','ña','cu','to','ví','les','ba','jo',
                    'rí','sa','ga','mo','ne'),
                ELT(1 + (seq DIV 300) %% 12, 'ca','bo','na','ta','quí','rra','llo','ja','sa',
                    'pa','zo','ri'),
                IF(seq %% 7 = 0, CONCAT(' ', ELT(1 + (seq DIV 3600) %% 8, 'del Sur','Norte',
                    'de Oro','Alto','Bajo','Nuevo','de los Ríos','Grande')), ''),
                IF(seq %% 11 = 0, CONCAT(' ', seq %% 97), ''))
              FROM seq_1_to_%1)"_s.arg(id).replace(u"%%"_s, u"%"_s));
        }
        if (contar(bd, u"SELECT COUNT(*) FROM martexpira WHERE bod=%1"_s.arg(id)) != n) {
            ejecutar(bd, u"DELETE FROM martexpira WHERE bod=%1"_s.arg(id));
            ejecutar(bd, uR"(INSERT INTO martexpira (cod, art, bod, lot, can, fec, pro, est)
              SELECT seq, seq MOD 500, %1, CONCAT('L', LPAD(seq MOD 100000, 6, '0')),
                (seq MOD 10000) / 100,
                IF(seq MOD 13 = 0, NULL, '2024-01-01' + INTERVAL (seq MOD 1000) DAY),
                seq MOD 50, seq MOD 2
              FROM seq_1_to_%1)"_s.arg(id));
        }
    }
}

QSqlQuery abrir(QSqlDatabase& bd, const Conjunto& c, int n)
{
    QSqlQuery q(bd);
    q.setForwardOnly(true);
    if (!q.prepare(c.sql))
        fallar(c.sql, q.lastError());
    if (c.campos == 1)
        q.addBindValue(QString::number(n));
    else
        q.addBindValue(n);
    if (!q.exec())
        fallar(c.sql, q.lastError());
    return q;
}

qint64 piso(QSqlDatabase& bd, const Conjunto& c, int n)
{
    QSqlQuery q = abrir(bd, c, n);
    qint64 filas = 0;
    while (q.next()) {
        for (int i = 0; i < c.campos; ++i) {
            const QVariant v = q.value(i);
            Q_UNUSED(v);
        }
        ++filas;
    }
    return filas;
}

void enGrilla(QSqlDatabase& bd, const Conjunto& c, int n, Alfarje& g)
{
    g.ClearRows();
    QSqlQuery q = abrir(bd, c, n);
    QVector<int> campos;
    for (int i = 0; i < c.campos; ++i)
        campos.append(i);
    g.modelo()->cargar(q, campos);
}

void enTablaIngenua(QSqlDatabase& bd, const Conjunto& c, int n, QTableWidget& t)
{
    t.clear();
    t.setRowCount(0);
    QSqlQuery q = abrir(bd, c, n);
    t.setColumnCount(c.campos);
    t.setRowCount(q.size() >= 0 ? q.size() : n);
    int f = 0;
    while (q.next()) {
        for (int i = 0; i < c.campos; ++i)
            t.setItem(f, i, new QTableWidgetItem(q.value(i).toString()));
        ++f;
    }
}

template <typename F>
double medianaMs(int veces, F&& f)
{
    std::vector<double> t;
    for (int i = 0; i < veces; ++i) {
        QElapsedTimer r;
        r.start();
        f();
        t.push_back(double(r.nsecsElapsed()) / 1e6);
    }
    std::sort(t.begin(), t.end());
    return t[t.size() / 2];
}

struct Busqueda {
    double medianaUs = 0;
    double peorUs = 0;
    int errores = 0;
};

// Types prefixes of random names letter by letter, as a user would.
Busqueda medirBusqueda(const Alfarje& g, int nombres, bool verificar)
{
    std::vector<double> t;
    Busqueda r;
    QRandomGenerator azar(20240101);
    const int filas = g.RowCount();
    if (filas == 0)
        return r;
    for (int k = 0; k < nombres; ++k) {
        const QString nombre = g.CellText(int(azar.bounded(filas)), 0);
        for (qsizetype largo = 1; largo <= nombre.size(); ++largo) {
            const QString p = nombre.left(largo);
            QElapsedTimer reloj;
            reloj.start();
            const int f = g.FindRow(p, 0, 5);
            t.push_back(double(reloj.nsecsElapsed()) / 1e3);
            if (verificar) {
                int esperado = -1;
                for (int i = 0; i < filas && esperado < 0; ++i)
                    if (nomencla::plegado::empiezaCon(g.CellText(i, 0), p))
                        esperado = i;
                r.errores += f != esperado;
            }
        }
    }
    std::sort(t.begin(), t.end());
    r.medianaUs = t[t.size() / 2];
    r.peorUs = t.back();
    return r;
}

long picoKb()
{
    QFile f(u"/proc/self/status"_s);
    if (!f.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray& l : f.readAll().split('\n'))
        if (l.startsWith("VmHWM:"))
            return l.mid(6).trimmed().split(' ').value(0).toLong();
    return -1;
}

// Peak memory of one fill, in a process of its own.
long picoEnHijo(const char* modo, const Conjunto& c, int n)
{
    QProcess p;
    p.start(QCoreApplication::applicationFilePath(),
            {u"--socket"_s, g_socket, u"--hijo"_s, QString::fromLatin1(modo),
             u"--conjunto"_s, QString::fromLatin1(c.nombre), u"--n"_s, QString::number(n)});
    if (!p.waitForFinished(600000))
        return -1;
    return QString::fromLatin1(p.readAllStandardOutput()).trimmed().toLong();
}

// First paint (e) and closing (f) of frmLsCiudad on a list of n rows, from the
// call of the public method to the list's first paint, and from the request to
// close it until the method has returned.
void medirDialogo(QSqlDatabase& bd, int n)
{
    clsNomencla nomencla;
    std::vector<double> primera, trasLlenado, cerrar;
    for (int r = 0; r < 3; ++r) {
        Cronometro c(u"frmLsCiudad"_s);
        qApp->installEventFilter(&c);
        c.reloj.start();
        nomencla.Ciudades(QString::number(n), bd);
        const qint64 fin = c.reloj.nsecsElapsed();
        qApp->removeEventFilter(&c);
        if (c.pintado < 0)
            continue;
        primera.push_back(double(c.pintado) / 1e6);
        trasLlenado.push_back(double(c.pintado - c.mostrado) / 1e6);
        cerrar.push_back(double(fin - c.cierre) / 1e6);
    }
    auto mediana = [](std::vector<double> v) {
        if (v.empty())
            return -1.0;
        std::sort(v.begin(), v.end());
        return v[v.size() / 2];
    };
    std::printf("  frmLsCiudad, %8d rows: call to first paint %8.1f ms (after the fill: %6.2f ms), close %6.2f ms\n", n,
                mediana(primera), mediana(trasLlenado), mediana(cerrar));
    std::fflush(stdout);
}

// ------------------------------------------------------------ on a cluster
// A save and a list fill through the library, on the single server and on a
// node of a Galera cluster in the same run (--cluster SOCKET): the cluster's
// cost is the certification of each commit by every node.

// Connection `nombre` to `socket`, in the database nomencla_bench_galera
// (created when missing).
QSqlDatabase conectarBase(const QString& socket, const QString& nombre)
{
    {
        QSqlDatabase bd = QSqlDatabase::addDatabase(u"QMYSQL"_s, nombre);
        bd.setConnectOptions(u"UNIX_SOCKET="_s + socket);
        bd.setUserName(u"root"_s);
        if (!bd.open())
            fallar(u"conexión a "_s + socket, bd.lastError());
        ejecutar(bd, u"CREATE DATABASE IF NOT EXISTS nomencla_bench_galera CHARACTER SET utf8mb4"
                     " COLLATE utf8mb4_unicode_ci"_s);
        bd.close();
    }
    QSqlDatabase bd = QSqlDatabase::database(nombre, false);
    bd.setDatabaseName(u"nomencla_bench_galera"_s);
    if (!bd.open())
        fallar(u"conexión a "_s + socket, bd.lastError());
    return bd;
}

struct Medida {
    double guardarMs = 0;
    double llenarMs = 0;
};

// Median of `veces` category saves (key MAX(cod)+1, in a transaction, as the
// dialog saves) and of `veces` fills of a list of `filas` rows into the grid.
Medida medirGuardarYLlenar(QSqlDatabase& bd, int veces, int filas)
{
    ejecutar(bd, u"DROP TABLE IF EXISTS mCatClie, lsCiudades"_s);
    ejecutar(bd, u"CREATE TABLE mCatClie (pk INT NOT NULL AUTO_INCREMENT PRIMARY KEY, id VARCHAR(20) NOT NULL,"
                 " cod INT NOT NULL, cat VARCHAR(100) NOT NULL, UNIQUE KEY (id, cod)) ENGINE=InnoDB"_s);
    ejecutar(bd, u"CREATE TABLE lsCiudades (pk INT NOT NULL AUTO_INCREMENT PRIMARY KEY, id VARCHAR(20) NOT NULL,"
                 " ciu VARCHAR(25), KEY (id, ciu)) ENGINE=InnoDB"_s);
    ejecutar(bd, u"INSERT INTO lsCiudades (id, ciu) SELECT '1', CONCAT('Ciudad ', seq) FROM seq_1_to_%1"_s.arg(filas));
    Medida m;
    int n = 0;
    m.guardarMs = medianaMs(veces, [&] {
        nomencla::conReintentos([&] {
            nomencla::Transaccion t(bd);
            nomencla::insertarConClaveSiguiente(bd, u"SELECT MAX(cod) FROM mCatClie WHERE id=?"_s, {u"1"_s},
                                                [&](qint32 clave) {
                                                    nomencla::ejecutar(bd,
                                                                       u"INSERT INTO mCatClie (id,cod,cat) VALUES (?,?,?)"_s,
                                                                       {u"1"_s, clave, u"Categoría %1"_s.arg(++n)});
                                                });
            t.confirmar();
        });
    });
    Alfarje g;
    g.setFormatocolumnas(u"<CIUDAD                  "_s);
    g.resize(800, 600);
    g.show();
    nomencla::clsGrillas grillas;
    m.llenarMs = medianaMs(veces, [&] {
        grillas.LlenarGrilla(bd, &g, u"SELECT ciu FROM lsCiudades WHERE id=? ORDER BY ciu"_s, {u"1"_s}, u"ciu"_s);
    });
    return m;
}

int medirCluster(const QString& unico, const QString& nodo, int veces)
{
    QSqlDatabase a = conectarBase(unico, u"unico"_s);
    QSqlDatabase b = conectarBase(nodo, u"nodo"_s);
    constexpr int filas = 10000;
    const Medida u = medirGuardarYLlenar(a, veces, filas);
    const Medida c = medirGuardarYLlenar(b, veces, filas);
    std::printf("%-28s %12s %12s %8s\n", "median of runs", "server ms", "cluster ms", "ratio");
    std::printf("%-28s %12.2f %12.2f %8.2f\n", "save (category, new key)", u.guardarMs, c.guardarMs,
                c.guardarMs / u.guardarMs);
    std::printf("%-28s %12.2f %12.2f %8.2f\n", qPrintable(u"list fill (%1 rows)"_s.arg(filas)), u.llenarMs,
                c.llenarMs, c.llenarMs / u.llenarMs);
    return 0;
}

// Export to CSV of a filled grid, against the fill itself: the whole file
// written (through a temporary file renamed at the end) must take no longer
// than the fill of the same rows.
void medirExportacion(QSqlDatabase& bd, const Conjunto& c, int n, int veces)
{
    Alfarje g;
    g.setFormatocolumnas(c.campos == 1 ? u"<CIUDAD                  "_s
                                       : u">COD   |<LOTE        |>CANT     |<FECHA     |^E"_s);
    g.setColumnFormat(2, u"##0.00"_s);
    g.setColumnFormat(3, u"dd/MM/yyyy"_s);
    const double llenar = medianaMs(veces, [&] { enGrilla(bd, c, n, g); });
    QTemporaryDir carpeta;
    const QString archivo = carpeta.filePath(u"lista.csv"_s);
    const double exportar = medianaMs(veces, [&] {
        QSaveFile salida(archivo);
        if (!salida.open(QIODevice::WriteOnly) || !nomencla::exportar::escribirCsv(&g, salida) || !salida.commit())
            fallar(u"exportación"_s, QSqlError(salida.errorString()));
    });
    std::printf("export %-6s %8d rows: fill %8.1f ms, CSV %8.1f ms (%.2f of the fill), %.1f MB\n", c.nombre, n,
                llenar, exportar, exportar / llenar, double(QFileInfo(archivo).size()) / (1024 * 1024));
    std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const QStringList args = app.arguments();
    auto opcion = [&](const QString& nombre, const QString& omision) {
        const qsizetype i = args.indexOf(nombre);
        return i >= 0 && i + 1 < args.size() ? args[i + 1] : omision;
    };
    g_socket = opcion(u"--socket"_s, QString());
    if (g_socket.isEmpty()) {
        std::fprintf(stderr, "usage: nomencla-bench --socket PATH [--max N] [--reps R] [--naive-max N]\n");
        return 1;
    }

    if (args.contains(u"--operaciones"_s))
        return medirOperaciones(g_socket, args);
    const QString nodo = opcion(u"--cluster"_s, QString());
    if (!nodo.isEmpty())
        return medirCluster(g_socket, nodo, std::max(1, opcion(u"--reps"_s, u"50"_s).toInt()));

    const QString hijo = opcion(u"--hijo"_s, QString());
    if (!hijo.isEmpty()) {
        QSqlDatabase bd = conectar(u"nomencla_bench"_s);
        const Conjunto& c = opcion(u"--conjunto"_s, QString()) == u"texto"_s ? kTexto : kMixto;
        const int n = opcion(u"--n"_s, u"0"_s).toInt();
        if (hijo == u"piso"_s) {
            piso(bd, c, n);
        } else {
            Alfarje g;
            g.setFormatocolumnas(c.campos == 1 ? u"<CIUDAD                  "_s
                                               : u">COD   |<LOTE        |>CANT     |<FECHA     |^E"_s);
            g.resize(800, 600);
            g.show();
            enGrilla(bd, c, n, g);
            app.processEvents();
        }
        std::printf("%ld\n", picoKb());
        return 0;
    }

    const int maximo = opcion(u"--max"_s, u"1000000"_s).toInt();
    const int veces = std::max(1, opcion(u"--reps"_s, u"5"_s).toInt());
    const int ingenuaMax = opcion(u"--naive-max"_s, u"100000"_s).toInt();
    std::vector<int> tamanos;
    for (int n : {1000, 10000, 100000, 1000000})
        if (n <= maximo)
            tamanos.push_back(n);

    {
        QSqlDatabase bd = conectar(QString());
        ejecutar(bd, u"CREATE DATABASE IF NOT EXISTS nomencla_bench CHARACTER SET utf8mb4"
                     " COLLATE utf8mb4_unicode_ci"_s);
        bd.close();
    }
    QSqlDatabase::removeDatabase(u"bench"_s);
    QSqlDatabase bd = conectar(u"nomencla_bench"_s);
    QElapsedTimer llenado;
    llenado.start();
    prepararDatos(bd, tamanos);
    std::printf("data ready in %.1f s (median of %d runs)\n\n", double(llenado.elapsed()) / 1000, veces);

    std::printf("%-6s %8s %11s %9s %9s %9s %6s %6s %9s %9s %8s %8s %6s\n", "set", "N",
                "rows/s(b)", "a ms", "b ms", "c ms", "b/a", "c/a", "find med", "find max",
                "mem a", "mem b", "b/a");
    std::printf("%-6s %8s %11s %9s %9s %9s %6s %6s %9s %9s %8s %8s %6s\n", "", "", "", "", "", "",
                "", "", "us", "us", "MB", "MB", "mem");
    for (const Conjunto* c : {&kTexto, &kMixto}) {
        for (int n : tamanos) {
            const int reps = n >= 1000000 ? std::max(1, veces / 2 + 1) : veces;
            const double a = medianaMs(reps, [&] { piso(bd, *c, n); });
            Alfarje g;
            g.setFormatocolumnas(c->campos == 1 ? u"<CIUDAD                  "_s
                                                : u">COD   |<LOTE        |>CANT     |<FECHA     |^E"_s);
            g.resize(800, 600);
            g.show();
            app.processEvents();
            const double b = medianaMs(reps, [&] { enGrilla(bd, *c, n, g); });
            app.processEvents();
            double cc = -1;
            if (n <= ingenuaMax) {
                QTableWidget t;
                t.resize(800, 600);
                t.show();
                cc = medianaMs(std::min(reps, 3), [&] { enTablaIngenua(bd, *c, n, t); });
            }
            Busqueda s;
            if (c->campos == 1)
                s = medirBusqueda(g, 300, false);
            const long ma = picoEnHijo("piso", *c, n);
            const long mb = picoEnHijo("grilla", *c, n);
            char cs[32] = "-", cr[16] = "-", sm[16] = "-", sw[16] = "-";
            if (cc >= 0) {
                std::snprintf(cs, sizeof cs, "%.1f", cc);
                std::snprintf(cr, sizeof cr, "%.1f", cc / a);
            }
            if (c->campos == 1) {
                std::snprintf(sm, sizeof sm, "%.2f", s.medianaUs);
                std::snprintf(sw, sizeof sw, "%.1f", s.peorUs);
            }
            std::printf("%-6s %8d %11.0f %9.1f %9.1f %9s %6.2f %6s %9s %9s %8.1f %8.1f %6.2f\n",
                        c->nombre, n, double(n) / (b / 1000), a, b, cs, b / a, cr, sm, sw,
                        double(ma) / 1024, double(mb) / 1024, double(mb) / double(ma));
            std::fflush(stdout);
            if (c->campos == 1 && n <= 10000) {
                const Busqueda v = medirBusqueda(g, 40, true);
                if (v.errores)
                    std::printf("  search disagrees with a linear scan %d times\n", v.errores);
            }
        }
    }
    std::printf("\n");
    for (int n : tamanos)
        medirDialogo(bd, n);
    std::printf("\n");
    for (const Conjunto* c : {&kTexto, &kMixto})
        medirExportacion(bd, *c, std::min(100000, maximo), veces);
    return 0;
}
