#include "core/ModeloAlfarje.h"

#include "core/Plegado.h"

#include <QLocale>
#include <QSqlError>
#include <QSqlQuery>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace nomencla {

namespace {

QString textoDecimal(double v)
{
    return QString::number(v, 'f', QLocale::FloatingPointShortest);
}

// Largest integer a double keeps exactly.
constexpr qint64 kEnteroExacto = qint64(1) << 53;

} // namespace

// One column of the grid. A column whose cells are all null is a text column
// not yet "defined": the first value decides its kind.
struct ModeloAlfarje::Columna {
    Tipo tipo = Tipo::Texto;
    bool definida = false;
    qsizetype n = 0;

    std::vector<char16_t> car;   // texts, one after the other
    std::vector<quint32> fin;    // where each text ends in car
    std::vector<qint64> ent;
    std::vector<double> dec;
    std::vector<qint32> dia;     // julian day
    std::vector<bool> nulo;      // empty while no cell is null
    // Starts of the runs of rows already in order (text columns): the search
    // goes through each run with a binary search.
    std::vector<int> tramos;

    int clase = 0;
    int decimales = -1; // numeric display format; -1 none
    bool agrupar = false;
    QString formatoFecha;

    explicit Columna(qsizetype filas) { agregarNulos(filas); }

    bool esNulo(qsizetype f) const { return !nulo.empty() && nulo[size_t(f)]; }

    QStringView vista(qsizetype f) const
    {
        const quint32 a = f ? fin[size_t(f - 1)] : 0;
        return QStringView(car.data() + a, qsizetype(fin[size_t(f)] - a));
    }

    QString texto(qsizetype f) const
    {
        if (esNulo(f))
            return QString();
        switch (tipo) {
        case Tipo::Texto: return vista(f).toString();
        case Tipo::Entero: return QString::number(ent[size_t(f)]);
        case Tipo::Decimal: return textoDecimal(dec[size_t(f)]);
        case Tipo::Fecha: return QDate::fromJulianDay(dia[size_t(f)]).toString(Qt::ISODate);
        }
        return QString();
    }

    double valor(qsizetype f) const
    {
        if (esNulo(f))
            return 0;
        switch (tipo) {
        case Tipo::Texto: {
            bool ok = false;
            const double v = vista(f).trimmed().toDouble(&ok);
            return ok ? v : 0;
        }
        case Tipo::Entero: return double(ent[size_t(f)]);
        case Tipo::Decimal: return dec[size_t(f)];
        case Tipo::Fecha: return 0;
        }
        return 0;
    }

    void marcar(bool esNulo_)
    {
        if (esNulo_ && nulo.empty())
            nulo.assign(size_t(n), false);
        if (!nulo.empty())
            nulo.push_back(esNulo_);
        ++n;
    }

    // Keeps the runs up to date for the text just appended at row n - 1.
    void seguirTramo()
    {
        const qsizetype f = n - 1;
        if (f == 0)
            tramos.push_back(0);
        else if (plegado::comparar(vista(f), vista(f - 1)) < 0)
            tramos.push_back(int(f));
    }

    void rehacerTramos()
    {
        tramos.clear();
        for (qsizetype f = 0; f < n; ++f)
            if (f == 0 || plegado::comparar(vista(f), vista(f - 1)) < 0)
                tramos.push_back(int(f));
    }

    // Room for `mas` more cells, once the kind of the column is known.
    void reservar(qsizetype mas)
    {
        const size_t total = size_t(n + mas);
        switch (tipo) {
        case Tipo::Texto: fin.reserve(total); break;
        case Tipo::Entero: ent.reserve(total); break;
        case Tipo::Decimal: dec.reserve(total); break;
        case Tipo::Fecha: dia.reserve(total); break;
        }
    }

    void agregarNulos(qsizetype cuantos)
    {
        for (qsizetype i = 0; i < cuantos; ++i)
            agregarNulo();
    }

    void agregarNulo()
    {
        switch (tipo) {
        case Tipo::Texto:
            fin.push_back(quint32(car.size()));
            marcar(true);
            seguirTramo();
            return;
        case Tipo::Entero: ent.push_back(0); break;
        case Tipo::Decimal: dec.push_back(0); break;
        case Tipo::Fecha: dia.push_back(0); break;
        }
        marcar(true);
    }

    // First value of a column that had only nulls: it takes that kind.
    void definir(Tipo t)
    {
        definida = true;
        if (t == tipo)
            return;
        tipo = t;
        car.clear();
        car.shrink_to_fit();
        fin.clear();
        fin.shrink_to_fit();
        tramos.clear();
        switch (t) {
        case Tipo::Entero: ent.assign(size_t(n), 0); break;
        case Tipo::Decimal: dec.assign(size_t(n), 0); break;
        case Tipo::Fecha: dia.assign(size_t(n), 0); break;
        case Tipo::Texto: break;
        }
    }

    void aTexto()
    {
        if (tipo == Tipo::Texto)
            return;
        std::vector<char16_t> c;
        std::vector<quint32> e;
        e.reserve(size_t(n));
        for (qsizetype f = 0; f < n; ++f) {
            const QString s = texto(f);
            c.insert(c.end(), s.utf16(), s.utf16() + s.size());
            e.push_back(quint32(c.size()));
        }
        car = std::move(c);
        fin = std::move(e);
        ent = {};
        dec = {};
        dia = {};
        tipo = Tipo::Texto;
        rehacerTramos();
    }

    void agregarTexto(QStringView s)
    {
        if (!definida)
            definir(Tipo::Texto);
        else if (tipo != Tipo::Texto)
            aTexto();
        car.insert(car.end(), s.utf16(), s.utf16() + s.size());
        fin.push_back(quint32(car.size()));
        marcar(false);
        seguirTramo();
    }

    void agregarEntero(qint64 v)
    {
        if (!definida)
            definir(Tipo::Entero);
        if (tipo == Tipo::Entero) {
            ent.push_back(v);
            marcar(false);
        } else if (tipo == Tipo::Decimal && v > -kEnteroExacto && v < kEnteroExacto) {
            dec.push_back(double(v));
            marcar(false);
        } else {
            aTexto();
            agregarTexto(QString::number(v));
        }
    }

    void agregarDecimal(double v)
    {
        if (!definida)
            definir(Tipo::Decimal);
        if (tipo == Tipo::Entero) {
            // Integers that a double keeps exactly become decimals.
            const bool caben = std::all_of(ent.begin(), ent.end(),
                [](qint64 x) { return x > -kEnteroExacto && x < kEnteroExacto; });
            if (caben && std::isfinite(v)) {
                dec.assign(ent.begin(), ent.end());
                ent = {};
                tipo = Tipo::Decimal;
            }
        }
        if (tipo == Tipo::Decimal && std::isfinite(v)) {
            dec.push_back(v);
            marcar(false);
        } else {
            aTexto();
            agregarTexto(textoDecimal(v));
        }
    }

    void agregarFecha(QDate d)
    {
        if (!d.isValid()) {
            agregarNulo();
            return;
        }
        if (!definida)
            definir(Tipo::Fecha);
        if (tipo == Tipo::Fecha) {
            dia.push_back(qint32(d.toJulianDay()));
            marcar(false);
        } else {
            aTexto();
            agregarTexto(d.toString(Qt::ISODate));
        }
    }

    void agregar(const QVariant& v)
    {
        if (v.isNull()) {
            agregarNulo();
            return;
        }
        switch (v.metaType().id()) {
        case QMetaType::QString:
            agregarTexto(*static_cast<const QString*>(v.constData()));
            return;
        case QMetaType::Int: agregarEntero(*static_cast<const int*>(v.constData())); return;
        case QMetaType::UInt: agregarEntero(*static_cast<const uint*>(v.constData())); return;
        case QMetaType::LongLong: agregarEntero(*static_cast<const qlonglong*>(v.constData())); return;
        case QMetaType::Short:
        case QMetaType::UShort:
        case QMetaType::Char:
        case QMetaType::SChar:
        case QMetaType::UChar:
        case QMetaType::Bool:
            agregarEntero(v.toLongLong());
            return;
        case QMetaType::ULongLong: {
            const qulonglong u = v.toULongLong();
            if (u <= qulonglong(std::numeric_limits<qint64>::max()))
                agregarEntero(qint64(u));
            else
                agregarTexto(QString::number(u));
            return;
        }
        case QMetaType::Double: agregarDecimal(*static_cast<const double*>(v.constData())); return;
        case QMetaType::Float: agregarDecimal(double(*static_cast<const float*>(v.constData()))); return;
        case QMetaType::QDate: agregarFecha(*static_cast<const QDate*>(v.constData())); return;
        case QMetaType::QDateTime: {
            const QDateTime t = v.toDateTime();
            if (t.time() == QTime(0, 0))
                agregarFecha(t.date());
            else
                agregarTexto(t.toString(u"yyyy-MM-dd hh:mm:ss"));
            return;
        }
        case QMetaType::QByteArray:
            agregarTexto(QString::fromUtf8(*static_cast<const QByteArray*>(v.constData())));
            return;
        default:
            agregarTexto(v.toString());
            return;
        }
    }

    // A cell given as text (AddItem): kept typed when it reads back the same.
    void agregarDesdeTexto(const QString& s)
    {
        if (definida && tipo != Tipo::Texto) {
            if (s.isEmpty()) {
                agregarNulo();
                return;
            }
            bool ok = false;
            switch (tipo) {
            case Tipo::Entero: {
                const qint64 v = s.toLongLong(&ok);
                if (ok && QString::number(v) == s)
                    return agregarEntero(v);
                break;
            }
            case Tipo::Decimal: {
                const double v = s.toDouble(&ok);
                if (ok && textoDecimal(v) == s)
                    return agregarDecimal(v);
                break;
            }
            case Tipo::Fecha: {
                const QDate d = QDate::fromString(s, Qt::ISODate);
                if (d.isValid() && d.toString(Qt::ISODate) == s)
                    return agregarFecha(d);
                break;
            }
            case Tipo::Texto: break;
            }
        }
        agregarTexto(s);
    }

    void quitar(qsizetype f)
    {
        switch (tipo) {
        case Tipo::Texto: {
            const quint32 a = f ? fin[size_t(f - 1)] : 0;
            const quint32 largo = fin[size_t(f)] - a;
            car.erase(car.begin() + a, car.begin() + a + largo);
            fin.erase(fin.begin() + f);
            for (size_t i = size_t(f); i < fin.size(); ++i)
                fin[i] -= largo;
            break;
        }
        case Tipo::Entero: ent.erase(ent.begin() + f); break;
        case Tipo::Decimal: dec.erase(dec.begin() + f); break;
        case Tipo::Fecha: dia.erase(dia.begin() + f); break;
        }
        if (!nulo.empty())
            nulo.erase(nulo.begin() + f);
        --n;
        if (tipo != Tipo::Texto)
            return;
        // The run holding f loses it; later runs move up one row.
        auto k = std::upper_bound(tramos.begin(), tramos.end(), int(f)) - 1;
        const int finTramo = (k + 1 != tramos.end()) ? *(k + 1) : int(n + 1);
        if (*k == f && finTramo == f + 1)
            k = tramos.erase(k);
        else
            ++k;
        for (auto i = k; i != tramos.end(); ++i)
            --*i;
        // The rows on both sides of the gap may now be in order.
        auto j = std::lower_bound(tramos.begin(), tramos.end(), int(f));
        if (f > 0 && f < n && j != tramos.end() && *j == f
            && plegado::comparar(vista(f), vista(f - 1)) >= 0)
            tramos.erase(j);
    }

    int buscarPrefijo(QStringView p) const
    {
        for (size_t k = 0; k < tramos.size(); ++k) {
            const int desde = tramos[k];
            const int hasta = k + 1 < tramos.size() ? tramos[k + 1] : int(n);
            int lo = desde;
            int hi = hasta;
            while (lo < hi) {
                const int m = lo + (hi - lo) / 2;
                if (plegado::comparar(vista(m), p) < 0)
                    lo = m + 1;
                else
                    hi = m;
            }
            // Texts equal to the prefix save for trailing blanks sort with it
            // without beginning with it.
            for (int f = lo; f < hasta; ++f) {
                const QStringView v = vista(f);
                if (plegado::empiezaCon(v, p))
                    return f;
                if (plegado::comparar(v, p) != 0)
                    break;
            }
        }
        return -1;
    }
};

ModeloAlfarje::ModeloAlfarje(QObject* parent) : QAbstractTableModel(parent) {}

ModeloAlfarje::~ModeloAlfarje() = default;

void ModeloAlfarje::inicioReinicio()
{
    if (!suspendido_)
        beginResetModel();
}

void ModeloAlfarje::finReinicio()
{
    if (!suspendido_)
        endResetModel();
}

void ModeloAlfarje::suspenderAvisos()
{
    if (suspendido_)
        return;
    beginResetModel();
    suspendido_ = true;
}

void ModeloAlfarje::reanudarAvisos()
{
    if (!suspendido_)
        return;
    suspendido_ = false;
    endResetModel();
}

void ModeloAlfarje::setColumnasDeclaradas(int n)
{
    n = std::max(0, n);
    if (n == declaradas_)
        return;
    inicioReinicio();
    declaradas_ = n;
    finReinicio();
}

ModeloAlfarje::Columna& ModeloAlfarje::columna(int c)
{
    asegurarColumnas(c + 1);
    return *columnas_[size_t(c)];
}

void ModeloAlfarje::asegurarColumnas(int n)
{
    while (int(columnas_.size()) < n)
        columnas_.push_back(std::make_unique<Columna>(filas_));
}

bool ModeloAlfarje::cargar(QSqlQuery& consulta, const QVector<int>& campos)
{
    const int nc = int(campos.size());
    inicioReinicio();
    asegurarColumnas(nc);
    std::vector<Columna*> cols;
    cols.reserve(size_t(nc));
    for (int c = 0; c < nc; ++c)
        cols.push_back(columnas_[size_t(c)].get());
    const int otras = int(columnas_.size());
    // Drivers that know the size of the result (MySQL does) let the columns
    // take their room at once, after the first row has set their kinds.
    const int esperadas = consulta.isForwardOnly() ? consulta.size() : -1;
    const int primera = filas_;
    while (consulta.next()) {
        if (filas_ == primera + 1 && esperadas > 1)
            for (auto& col : columnas_)
                col->reservar(esperadas - 1);
        for (int c = 0; c < nc; ++c) {
            if (campos[c] < 0)
                cols[size_t(c)]->agregarNulo();
            else
                cols[size_t(c)]->agregar(consulta.value(campos[c]));
        }
        for (int c = nc; c < otras; ++c)
            columnas_[size_t(c)]->agregarNulo();
        ++filas_;
    }
    const bool ok = !consulta.lastError().isValid();
    finReinicio();
    return ok;
}

void ModeloAlfarje::agregarFila(const QStringList& celdas)
{
    const int nc = int(celdas.size());
    if (!suspendido_ && nc > columnCount()) {
        beginInsertColumns({}, columnCount(), nc - 1);
        asegurarColumnas(nc);
        endInsertColumns();
    }
    asegurarColumnas(nc);
    if (!suspendido_)
        beginInsertRows({}, filas_, filas_);
    for (size_t c = 0; c < columnas_.size(); ++c) {
        if (int(c) < nc)
            columnas_[c]->agregarDesdeTexto(celdas[qsizetype(c)]);
        else
            columnas_[c]->agregarNulo();
    }
    ++filas_;
    if (!suspendido_)
        endInsertRows();
}

void ModeloAlfarje::quitarFila(int fila)
{
    if (fila < 0 || fila >= filas_)
        return;
    if (!suspendido_)
        beginRemoveRows({}, fila, fila);
    for (auto& c : columnas_)
        c->quitar(fila);
    --filas_;
    if (!suspendido_)
        endRemoveRows();
}

void ModeloAlfarje::vaciar()
{
    inicioReinicio();
    for (auto& c : columnas_) {
        auto nueva = std::make_unique<Columna>(0);
        nueva->clase = c->clase;
        nueva->decimales = c->decimales;
        nueva->agrupar = c->agrupar;
        nueva->formatoFecha = c->formatoFecha;
        c = std::move(nueva);
    }
    filas_ = 0;
    finReinicio();
}

int ModeloAlfarje::filas() const noexcept { return filas_; }

int ModeloAlfarje::columnas() const noexcept
{
    return std::max(declaradas_, int(columnas_.size()));
}

QString ModeloAlfarje::texto(int fila, int columna) const
{
    if (fila < 0 || fila >= filas_ || columna < 0 || columna >= int(columnas_.size()))
        return QString();
    return columnas_[size_t(columna)]->texto(fila);
}

double ModeloAlfarje::valor(int fila, int columna) const
{
    if (fila < 0 || fila >= filas_ || columna < 0 || columna >= int(columnas_.size()))
        return 0;
    return columnas_[size_t(columna)]->valor(fila);
}

bool ModeloAlfarje::esNulo(int fila, int columna) const
{
    if (fila < 0 || fila >= filas_ || columna < 0 || columna >= int(columnas_.size()))
        return true;
    return columnas_[size_t(columna)]->esNulo(fila);
}

int ModeloAlfarje::buscar(QStringView texto, int columna, int modo) const
{
    if (texto.isEmpty() || columna < 0 || columna >= int(columnas_.size()))
        return -1;
    const Columna& c = *columnas_[size_t(columna)];
    if (modo == 5) {
        if (c.tipo == Tipo::Texto)
            return c.buscarPrefijo(texto);
        for (int f = 0; f < filas_; ++f)
            if (plegado::empiezaCon(c.texto(f), texto))
                return f;
        return -1;
    }
    for (int f = 0; f < filas_; ++f) {
        if (c.tipo == Tipo::Texto ? plegado::igualSinMayusculas(c.vista(f), texto)
                                  : plegado::igualSinMayusculas(c.texto(f), texto))
            return f;
    }
    return -1;
}

void ModeloAlfarje::setFormato(int col, const QString& formato)
{
    if (col < 0)
        return;
    Columna& c = columna(col);
    c.decimales = -1;
    c.agrupar = false;
    c.formatoFecha.clear();
    const bool numerico = !formato.isEmpty()
        && std::all_of(formato.begin(), formato.end(), [](QChar x) {
               return x == u'#' || x == u'0' || x == u'.' || x == u',';
           });
    if (numerico) {
        const qsizetype punto = formato.indexOf(u'.');
        c.decimales = punto < 0 ? 0 : int(formato.size() - punto - 1);
        c.agrupar = formato.contains(u',');
    } else {
        c.formatoFecha = formato;
    }
    if (filas_ > 0)
        Q_EMIT dataChanged(index(0, col), index(filas_ - 1, col));
}

void ModeloAlfarje::setClase(int col, int clase)
{
    if (col < 0)
        return;
    columna(col).clase = clase;
    if (filas_ > 0)
        Q_EMIT dataChanged(index(0, col), index(filas_ - 1, col));
}

double ModeloAlfarje::total(int col) const
{
    if (col < 0 || col >= int(columnas_.size()))
        return 0;
    const Columna& c = *columnas_[size_t(col)];
    double suma = 0;
    if (c.tipo == Tipo::Entero && c.nulo.empty()) {
        for (qint64 v : c.ent)
            suma += double(v);
    } else if (c.tipo == Tipo::Decimal && c.nulo.empty()) {
        for (double v : c.dec)
            suma += v;
    } else {
        for (int f = 0; f < filas_; ++f)
            suma += c.valor(f);
    }
    return suma;
}

QString ModeloAlfarje::textoMostrado(int fila, int col) const
{
    if (fila < 0 || fila >= filas_ || col < 0 || col >= int(columnas_.size()))
        return QString();
    const Columna& c = *columnas_[size_t(col)];
    if (c.esNulo(fila))
        return QString();
    if (c.decimales >= 0) {
        if (c.tipo == Tipo::Texto) {
            bool ok = false;
            (void)c.vista(fila).trimmed().toDouble(&ok);
            if (!ok)
                return c.texto(fila);
        } else if (c.tipo == Tipo::Fecha) {
            return c.texto(fila);
        }
        QLocale l = QLocale::c();
        l.setNumberOptions(c.agrupar ? QLocale::NumberOptions() : QLocale::OmitGroupSeparator);
        return l.toString(c.valor(fila), 'f', c.decimales);
    }
    if (!c.formatoFecha.isEmpty()) {
        QDate d;
        if (c.tipo == Tipo::Fecha)
            d = QDate::fromJulianDay(c.dia[size_t(fila)]);
        else if (c.tipo == Tipo::Texto)
            d = QDate::fromString(c.vista(fila).left(10).toString(), Qt::ISODate);
        if (d.isValid()) {
            static const QLocale ecuador(QLocale::Spanish, QLocale::Ecuador);
            return ecuador.toString(d, c.formatoFecha);
        }
    }
    return c.texto(fila);
}

int ModeloAlfarje::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : filas_;
}

int ModeloAlfarje::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : columnas();
}

QVariant ModeloAlfarje::data(const QModelIndex& i, int role) const
{
    if (!i.isValid())
        return QVariant();
    const int col = i.column();
    const bool marca = col < int(columnas_.size()) && columnas_[size_t(col)]->clase == 3;
    switch (role) {
    case Qt::DisplayRole:
        if (marca)
            return QVariant();
        return textoMostrado(i.row(), col);
    case Qt::CheckStateRole:
        if (!marca)
            return QVariant();
        return valor(i.row(), col) != 0 ? Qt::Checked : Qt::Unchecked;
    case Qt::TextAlignmentRole:
        if (col < alineaciones_.size())
            return int(alineaciones_[col] | Qt::AlignVCenter);
        return int(Qt::AlignLeft | Qt::AlignVCenter);
    default:
        return QVariant();
    }
}

QVariant ModeloAlfarje::headerData(int section, Qt::Orientation o, int role) const
{
    if (o == Qt::Vertical) {
        if (role == Qt::DisplayRole)
            return QString::number(section + 1);
        return QVariant();
    }
    if (role == Qt::DisplayRole)
        return section < titulos_.size() ? titulos_[section] : QString();
    if (role == Qt::TextAlignmentRole && section < alineaciones_.size())
        return int(alineaciones_[section] | Qt::AlignVCenter);
    return QVariant();
}

void ModeloAlfarje::setTitulos(const QStringList& titulos, const QList<Qt::Alignment>& alineaciones)
{
    titulos_ = titulos;
    alineaciones_ = alineaciones;
    if (columnCount() > 0)
        Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

} // namespace nomencla
