#include "core/LeerCsv.h"

#include <QStringDecoder>

using namespace Qt::StringLiterals;

namespace nomencla::csv {

namespace {

// Windows-1252 differs from Latin-1 in 0x80-0x9F only; the five codes it
// leaves unassigned are kept as their C1 control characters.
constexpr char16_t kCp1252[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

QString desdeCp1252(const QByteArray& bytes)
{
    QString r(bytes.size(), Qt::Uninitialized);
    QChar* p = r.data();
    for (const char b : bytes) {
        const auto u = static_cast<unsigned char>(b);
        *p++ = QChar(u >= 0x80 && u < 0xA0 ? kCp1252[u - 0x80] : char16_t(u));
    }
    return r;
}

bool decodificarUtf16(const QByteArray& bytes, QStringConverter::Encoding cual, QString& texto)
{
    QStringDecoder d(cual, QStringDecoder::Flag::Stateless);
    texto = d.decode(QByteArrayView(bytes).sliced(2));
    return !d.hasError();
}

// Fields of the first line with this separator, quotes respected.
int camposPrimeraLinea(QStringView texto, QChar separador)
{
    int n = 1;
    bool entreComillas = false;
    for (QChar c : texto) {
        if (c == u'"')
            entreComillas = !entreComillas;
        else if (!entreComillas && (c == u'\n' || c == u'\r'))
            break;
        else if (!entreComillas && c == separador)
            ++n;
    }
    return n;
}

} // namespace

bool decodificar(const QByteArray& bytes, QString& texto, QString* codificacion)
{
    auto decir = [&](const QString& nombre) {
        if (codificacion)
            *codificacion = nombre;
    };
    if (bytes.startsWith("\xFF\xFE")) {
        decir(u"UTF-16"_s);
        return decodificarUtf16(bytes, QStringConverter::Utf16LE, texto);
    }
    if (bytes.startsWith("\xFE\xFF")) {
        decir(u"UTF-16"_s);
        return decodificarUtf16(bytes, QStringConverter::Utf16BE, texto);
    }
    if (bytes.contains('\0'))
        return false;
    QStringDecoder utf8(QStringConverter::Utf8, QStringDecoder::Flag::Stateless);
    texto = utf8.decode(bytes); // drops a byte-order mark
    if (!utf8.hasError()) {
        decir(u"UTF-8"_s);
        return true;
    }
    decir(u"Windows-1252"_s);
    texto = desdeCp1252(bytes);
    return true;
}

QChar separador(QStringView texto, int columnas)
{
    static constexpr char16_t candidatos[] = {u';', u'\t', u','};
    QChar mejor = candidatos[0];
    int mas = 1;
    for (char16_t c : candidatos) {
        const int n = camposPrimeraLinea(texto, c);
        if (n > 1 && n == columnas)
            return c;
        // In a list of one column a comma is part of the name ("Quito, Pichincha").
        if (n > mas && !(c == u',' && columnas == 1)) {
            mas = n;
            mejor = c;
        }
    }
    return mejor;
}

QList<Registro> partir(QStringView texto, QChar separador)
{
    QList<Registro> r;
    Registro actual;
    QString campo;
    bool entreComillas = false;
    int linea = 1;
    actual.linea = 1;
    auto cerrarCampo = [&] {
        actual.campos.append(campo.trimmed());
        campo.clear();
    };
    auto cerrarRegistro = [&] {
        cerrarCampo();
        if (actual.campos.size() > 1 || !actual.campos.first().isEmpty())
            r.append(actual);
        actual = Registro{};
        actual.linea = linea;
    };
    const qsizetype n = texto.size();
    for (qsizetype i = 0; i < n; ++i) {
        const QChar c = texto[i];
        if (entreComillas) {
            if (c == u'"') {
                if (i + 1 < n && texto[i + 1] == u'"') {
                    campo += u'"';
                    ++i;
                } else {
                    entreComillas = false;
                }
            } else {
                if (c == u'\n')
                    ++linea;
                campo += c;
            }
        } else if (c == u'"' && campo.trimmed().isEmpty()) {
            campo.clear();
            entreComillas = true;
        } else if (c == separador) {
            cerrarCampo();
        } else if (c == u'\r' || c == u'\n') {
            if (c == u'\r' && i + 1 < n && texto[i + 1] == u'\n')
                ++i;
            ++linea;
            cerrarRegistro();
        } else {
            campo += c; // text after a closing quote is kept as it stands
        }
    }
    if (!campo.isEmpty() || !actual.campos.isEmpty())
        cerrarRegistro();
    return r;
}

} // namespace nomencla::csv
