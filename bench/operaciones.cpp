// The operations of a dialog, on tenant '1' of 10,000 or 1,000,000 rows per
// table beside 19 tenants of 10,000 rows ("small") or of --vecinos-grandes
// rows ("big"), each database filled once by db/volumen.sql and kept:
//   save      MAX(cod)+1 and the insert of a category (rolled back)
//   removal   the in-use check and the removal of a category (rolled back)
//   reload    the category list into the grid, as after a save or removal
//   rename    a place and the customers that carry it, in one transaction
//             (rolled back), for places carried by 1, 1,000 and 100,000
//             customers (as many as the tenant has, at 10,000)
//   opening   CategoriaClientes from the call to the list's first paint
// Every statement is the dialog's own (frmLsCategorias, frmLsZona).
#include "bench/operaciones.h"

#include "bench/cronometro.h"
#include "catalogues/frmLsCategorias.h"
#include "catalogues/frmLsZona.h"
#include "core/Alfarje.h"
#include "core/BaseDatos.h"
#include "core/clsGrillas.h"

#include <nomencla/clsNomencla.h>

#include <QApplication>
#include <QFile>
#include <QRegularExpression>
#include <QSqlError>
#include <QSqlQuery>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

using namespace Qt::StringLiterals;
using namespace nomencla;

namespace {

QString g_socket;

QSqlDatabase conectar(const QString& nombre, const QString& base)
{
    QSqlDatabase bd = QSqlDatabase::addDatabase(u"QMYSQL"_s, nombre);
    bd.setHostName(u"localhost"_s);
    bd.setConnectOptions(u"UNIX_SOCKET="_s + g_socket);
    bd.setUserName(u"root"_s);
    bd.setDatabaseName(base);
    if (!bd.open()) {
        std::fprintf(stderr, "%s\n", qPrintable(bd.lastError().text()));
        std::exit(2);
    }
    return bd;
}

QString leer(const char* archivo)
{
    QFile f(QStringLiteral(NOMENCLA_FUENTES "/db/") + QLatin1StringView(archivo));
    if (!f.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "cannot read db/%s\n", archivo);
        std::exit(2);
    }
    return QString::fromUtf8(f.readAll());
}

qint64 valor(QSqlDatabase& bd, const QString& sql)
{
    return consultarValor(bd, sql).toLongLong();
}

struct Escenario {
    int filas;   // tenant '1'
    int vecino;  // each of the 19 others
    QString base() const { return u"nomencla_ops_%1_%2"_s.arg(filas).arg(vecino); }
};

// Tables the operations touch; the fill leaves the others out.
const QStringList tablas{u"mCatClie"_s, u"mCliente"_s, u"mZonaClie"_s, u"mZonaLugar"_s};

// The places renamed: 'Lugar Rc' of zone 1001, carried by c customers.
const int llevados[] = {1, 1000, 100000};

void preparar(const Escenario& e)
{
    {
        QSqlDatabase bd = conectar(u"ops_admin"_s, QString());
        ejecutar(bd, u"CREATE DATABASE IF NOT EXISTS "_s + e.base()
                         + u" CHARACTER SET utf8mb4 COLLATE utf8mb4_unicode_ci"_s);
    }
    QSqlDatabase::removeDatabase(u"ops_admin"_s);
    QSqlDatabase bd = conectar(u"ops_prep"_s, e.base());
    const bool lista = [&] {
        try {
            return valor(bd, u"SELECT COUNT(*) FROM mCatClie WHERE id='1'"_s) == e.filas
                && valor(bd, u"SELECT COUNT(*) FROM mCliente WHERE id='v19'"_s) == e.vecino
                && valor(bd, u"SELECT COUNT(*) FROM mZonaLugar WHERE id='1' AND lug LIKE 'Lugar R%'"_s) == 3;
        } catch (const ErrorBD&) {
            return false;
        }
    }();
    if (!lista) {
        std::printf("filling %s ...\n", qPrintable(e.base()));
        std::fflush(stdout);
        for (const QString& t : tablas)
            ejecutar(bd, u"DROP TABLE IF EXISTS "_s + t);
        static const QRegularExpression inserta(u"^\\s*INSERT INTO (\\w+)"_s);
        static const QRegularExpression crea(u"CREATE TABLE IF NOT EXISTS (\\w+)"_s);
        for (const QString& s : leer("schema.sql").split(u";\n"_s, Qt::SkipEmptyParts))
            if (const auto m = crea.match(s); m.hasMatch() && tablas.contains(m.captured(1)))
                ejecutar(bd, s);
        ejecutar(bd, u"SET @inquilino='1', @filas=%1, @vecinos=19, @filas_vecino=%2"_s.arg(e.filas).arg(e.vecino));
        for (QString s : leer("volumen.sql").split(u";\n"_s, Qt::SkipEmptyParts)) {
            s.remove(QRegularExpression(u"^(--[^\\n]*\\n|\\s)*"_s));
            if (s.isEmpty() || s.startsWith(u"ANALYZE"_s))
                continue;
            if (const auto m = inserta.match(s); m.hasMatch() && !tablas.contains(m.captured(1))
                                                 && m.captured(1) != u"volumen_inquilinos"_s)
                continue;
            ejecutar(bd, s);
        }
        const qint64 primero = valor(bd, u"SELECT MIN(cod) FROM mCliente WHERE id='1'"_s);
        ejecutar(bd, u"UPDATE mCliente SET zon=1001, lug=CASE WHEN cod<? THEN 'Lugar R1' WHEN cod<? THEN "
                     "'Lugar R1000' ELSE 'Lugar R100000' END WHERE id='1' AND cod BETWEEN ? AND ?"_s,
                 {primero + 1, primero + 1001, primero, primero + 101000});
        ejecutar(bd, u"INSERT INTO mZonaLugar (id,zon,lug,ord,est) VALUES "
                     "('1',1001,'Lugar R1',0,1),('1',1001,'Lugar R1000',0,1),('1',1001,'Lugar R100000',0,1)"_s);
        ejecutar(bd, u"ANALYZE TABLE mCatClie, mCliente, mZonaClie, mZonaLugar"_s);
    }
}

double mediana(std::vector<double> v)
{
    if (v.empty())
        return -1;
    std::sort(v.begin(), v.end());
    return v[v.size() / 2];
}

// Rows the server has read for this session so far (index look-ups, index
// and table scans): what a statement costs, free of the machine's noise.
qint64 lecturas(QSqlDatabase& bd)
{
    return valor(bd, u"SELECT SUM(VARIABLE_VALUE) FROM information_schema.SESSION_STATUS "
                     "WHERE VARIABLE_NAME LIKE 'HANDLER_READ%'"_s);
}

struct Medida {
    double ms = -1;
    qint64 filas = -1;
};

// Median of `veces` runs of `medido`, in ms, and the rows read by one run;
// each run inside a transaction that is rolled back after the measure.
Medida enTransaccion(QSqlDatabase& bd, int veces, const std::function<void()>& medido)
{
    std::vector<double> t;
    Medida m;
    for (int i = -1; i < veces; ++i) { // the first run warms the caches and counts the rows
        Transaccion tr(bd);
        const qint64 antes = i < 0 ? lecturas(bd) : 0;
        const qint64 propias = i < 0 ? lecturas(bd) - antes : 0; // those of the question itself
        QElapsedTimer reloj;
        reloj.start();
        medido();
        if (i >= 0)
            t.push_back(double(reloj.nsecsElapsed()) / 1e6);
        else
            m.filas = lecturas(bd) - antes - 2 * propias;
    }
    m.ms = mediana(t);
    return m;
}

struct Fila {
    QString operacion;
    std::vector<Medida> m; // one per scenario
};

void medir(const Escenario& e, int veces, std::vector<Fila>& filas, size_t columna)
{
    preparar(e);
    QSqlDatabase::removeDatabase(u"ops_prep"_s);
    // A connection per scenario: the library keeps the last one it was given.
    QSqlDatabase bd = conectar(u"ops_"_s + e.base(), e.base());
    const DatosListaCodificada& d = frmLsCategorias::datos();
    const QString id = u"1"_s;
    auto anotar = [&](const QString& operacion, Medida m) {
        auto it = std::find_if(filas.begin(), filas.end(), [&](const Fila& f) { return f.operacion == operacion; });
        if (it == filas.end()) {
            filas.push_back({operacion, {}});
            it = std::prev(filas.end());
        }
        it->m.resize(std::max(it->m.size(), columna + 1));
        it->m[columna] = m;
    };

    anotar(u"save (MAX(cod)+1, insert)"_s, enTransaccion(bd, veces, [&] {
        const qint32 clave = consultarValor(bd, d.clave.sql, d.clave.enlazar(id)).toInt() + 1;
        ejecutar(bd, d.insertar.sql, d.insertar.enlazar(id, {u"Categoría nueva"_s, u"Prueba"_s, clave}));
    }));
    // A category no customer carries, the one a clerk may remove.
    const qint32 libre = 1000 + e.filas - 1;
    anotar(u"removal (in-use check, update)"_s, enTransaccion(bd, veces, [&] {
        const QVariantList v{QString(), QString(), libre};
        if (consultarValor(bd, d.referencia.sql, d.referencia.enlazar(id, v)).toLongLong() == 0)
            ejecutar(bd, d.borrar.sql, d.borrar.enlazar(id, v));
    }));
    anotar(u"in-use check of a category in use"_s, enTransaccion(bd, veces, [&] {
        consultarValor(bd, d.referencia.sql, d.referencia.enlazar(id, {QString(), QString(), 1005}));
    }));
    {
        Alfarje grilla;
        grilla.setFormatocolumnas(d.formato);
        clsGrillas g;
        anotar(u"list reload (the tenant's rows)"_s, enTransaccion(bd, 5, [&] {
            g.LlenarGrilla(bd, &grilla, d.lista.sql, d.lista.enlazar(id), d.campos);
        }));
    }
    for (const int c : llevados) {
        const QString lugar = u"Lugar R%1"_s.arg(c);
        const qint64 cod = valor(bd, u"SELECT cod FROM mZonaLugar WHERE id='1' AND lug='%1'"_s.arg(lugar));
        const qint64 clientes = valor(bd, u"SELECT COUNT(*) FROM mCliente WHERE id='1' AND lug='%1'"_s.arg(lugar));
        const auto& s = frmLsZona::lugares();
        const QString nuevo = lugar + u" Norte"_s;
        anotar(u"rename carried by %1"_s.arg(c), enTransaccion(bd, c >= 100000 ? 3 : veces, [&] {
            ejecutar(bd, s.actualizar, {nuevo, 0.0, cod, id});
            ejecutar(bd, s.clientes, {nuevo, id, lugar, 1001});
        }));
        if (clientes != c)
            std::printf("  %s: %lld customers carry 'Lugar R%d' (the tenant has no more)\n", qPrintable(e.base()),
                        clientes, c);
    }
    {
        clsNomencla nomencla;
        std::vector<double> t;
        for (int i = 0; i < 3; ++i) {
            Cronometro c(u"frmLsCategorias"_s);
            qApp->installEventFilter(&c);
            c.reloj.start();
            nomencla.CategoriaClientes(id, bd);
            qApp->removeEventFilter(&c);
            if (c.pintado >= 0)
                t.push_back(double(c.pintado) / 1e6);
        }
        anotar(u"opening (call to first paint)"_s, {mediana(t), -1});
    }
}

} // namespace

int medirOperaciones(const QString& socket, const QStringList& args)
{
    g_socket = socket;
    auto opcion = [&](const QString& nombre, int omision) {
        const qsizetype i = args.indexOf(nombre);
        return i >= 0 && i + 1 < args.size() ? args[i + 1].toInt() : omision;
    };
    const int veces = std::max(3, opcion(u"--reps"_s, 21));
    const int grande = opcion(u"--vecinos-grandes"_s, 100000);
    const std::vector<Escenario> escenarios{{10000, 10000}, {1000000, 10000}, {10000, grande}, {1000000, grande}};
    const size_t cuantos = args.contains(u"--sin-1m-grandes"_s) ? 3 : 4;
    std::vector<Fila> filas;
    for (size_t i = 0; i < cuantos; ++i) {
        medir(escenarios[i], veces, filas, i);
    }
    std::printf("\nmedians in ms; tenant '1' beside 19 tenants of 10,000 (small) or %d (big) rows per table\n", grande);
    std::printf("%-36s %10s %10s %7s %10s %7s %10s %7s   rows read: %s\n", "operation", "10k/small", "1M/small",
                "1M/10k", "10k/big", "big/sm", "1M/big", "big/sm", "10k/small 1M/small 10k/big 1M/big");
    for (const Fila& f : filas) {
        auto m = [&](size_t i) { return i < f.m.size() ? f.m[i] : Medida{}; };
        std::printf("%-36s %10.3f %10.3f %7.2f %10.3f %7.2f %10.3f %7.2f   %lld %lld %lld %lld\n",
                    qPrintable(f.operacion), m(0).ms, m(1).ms, m(1).ms / m(0).ms, m(2).ms, m(2).ms / m(0).ms, m(3).ms,
                    m(3).ms / m(1).ms, m(0).filas, m(1).filas, m(2).filas, m(3).filas);
    }
    return 0;
}
