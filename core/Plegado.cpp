#include "core/Plegado.h"

#include <QChar>
#include <QString>

#include <algorithm>
#include <cstdint>
#include <memory>

namespace nomencla::plegado {
namespace {

// Every UTF-16 unit has a weight: the class in the upper bits (blank,
// punctuation, digit, letter) and the folded character below, so that a
// plain comparison of weights gives the collation order. Weight 0 means the
// unit is ignored (combining marks, controls). A few letters stand for two
// (ß = ss, æ = ae, ligatures): their second weight goes in the upper half.
constexpr std::uint32_t kBlanco = 1u << 16;
constexpr std::uint32_t kSigno = 2u << 16;
constexpr std::uint32_t kDigito = 3u << 16;
constexpr std::uint32_t kLetra = 4u << 16;
constexpr std::uint32_t kPesoBlanco = kBlanco | 0x20u;

// ASCII punctuation and symbols in the order the Unicode collation gives them
// (which is not the code order): the rest go after these, by code.
constexpr char16_t kOrdenSignos[] = u"_-,;:!?.'\"()[]{}@*/\\&#%`^+<=>|~$";

struct Tabla {
    std::unique_ptr<std::uint64_t[]> peso{new std::uint64_t[0x10000]};
    Tabla();
};

std::uint32_t pesoLetra(char16_t c)
{
    return kLetra | QChar::toCaseFolded(char32_t(c));
}

// The base character of `u` after taking away accents, or a two-letter
// expansion; 0 in `segundo` when there is none.
char16_t base(char16_t u, char16_t& segundo)
{
    segundo = 0;
    switch (u) { // letters without a decomposition that still fold
    case u'ß': segundo = u's'; return u's';
    case u'æ': case u'Æ': segundo = u'e'; return u'a';
    case u'œ': case u'Œ': segundo = u'e'; return u'o';
    case u'ø': case u'Ø': return u'o';
    case u'đ': case u'Đ': return u'd';
    case u'ł': case u'Ł': return u'l';
    case u'ħ': case u'Ħ': return u'h';
    case u'ŧ': case u'Ŧ': return u't';
    case u'ı': return u'i';
    default: break;
    }
    char16_t c = u;
    for (int vuelta = 0; vuelta < 4; ++vuelta) {
        const QChar q(c);
        if (q.decompositionTag() == QChar::NoDecomposition)
            break;
        const QString d = q.decomposition();
        if (d.isEmpty() || d.at(0).isHighSurrogate())
            break;
        // Keep the base and a second letter when the decomposition is a
        // ligature ("ﬁ" = "fi"); combining marks after the base are dropped.
        if (d.size() >= 2 && d.at(1).isLetterOrNumber())
            segundo = d.at(1).unicode();
        c = d.at(0).unicode();
        if (segundo)
            break;
    }
    return c;
}

std::uint32_t pesoDe(char16_t c)
{
    if (c == 0x20 || (c >= 0x09 && c <= 0x0D))
        return kPesoBlanco;
    const QChar q(c);
    if (q.isSurrogate())
        return kLetra | c; // outside the plane: kept as they are, after the rest
    switch (q.category()) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_SpacingCombining:
    case QChar::Mark_Enclosing:
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_NotAssigned:
        return 0;
    default:
        break;
    }
    if (q.isSpace())
        return kPesoBlanco;
    if (q.isDigit())
        return kDigito | std::uint32_t(q.digitValue());
    if (c < 0x80) {
        if (q.isLetter())
            return pesoLetra(c);
        for (std::uint32_t i = 0; kOrdenSignos[i]; ++i)
            if (kOrdenSignos[i] == c)
                return kSigno | i;
    }
    if (q.isLetter())
        return pesoLetra(c);
    return kSigno | 0x100u | c;
}

Tabla::Tabla()
{
    for (std::uint32_t u = 0; u < 0x10000; ++u) {
        const auto c = char16_t(u);
        char16_t segundo = 0;
        const QChar q(c);
        const bool conBase = !q.isSurrogate() && (q.isLetter() || q.isNumber());
        const char16_t b = conBase ? base(c, segundo) : c;
        std::uint64_t p = pesoDe(b);
        if (segundo)
            p |= std::uint64_t(pesoDe(segundo)) << 32;
        peso[u] = p;
    }
}

const std::uint64_t* tabla()
{
    static const Tabla t;
    return t.peso.get();
}

// Reads the weights of a text one after the other.
struct Lector {
    const char16_t* p;
    const char16_t* fin;
    const std::uint64_t* t;
    std::uint32_t pendiente = 0;

    Lector(QStringView s, const std::uint64_t* tab) noexcept
        : p(s.utf16()), fin(s.utf16() + s.size()), t(tab) {}

    // Next weight, 0 at the end.
    std::uint32_t siguiente() noexcept
    {
        if (pendiente) {
            const std::uint32_t w = pendiente;
            pendiente = 0;
            return w;
        }
        while (p < fin) {
            const std::uint64_t w = t[*p++];
            if (w) {
                pendiente = std::uint32_t(w >> 32);
                return std::uint32_t(w);
            }
        }
        return 0;
    }

    // True when only blanks (or ignored units) are left, `w` included.
    bool soloBlancos(std::uint32_t w) noexcept
    {
        while (w) {
            if (w != kPesoBlanco)
                return false;
            w = siguiente();
        }
        return true;
    }
};

} // namespace

int comparar(QStringView a, QStringView b) noexcept
{
    // The common beginning, unit by unit, weighs the same on both sides.
    const qsizetype n = std::min(a.size(), b.size());
    qsizetype i = 0;
    const char16_t* pa = a.utf16();
    const char16_t* pb = b.utf16();
    while (i < n && pa[i] == pb[i])
        ++i;
    if (i == a.size() && i == b.size())
        return 0;
    // Each unit weighs on its own, so the common beginning can be skipped.
    const std::uint64_t* t = tabla();
    Lector la(a.sliced(i), t);
    Lector lb(b.sliced(i), t);
    for (;;) {
        const std::uint32_t wa = la.siguiente();
        const std::uint32_t wb = lb.siguiente();
        if (wa == wb) {
            if (!wa)
                return 0;
            continue;
        }
        if (!wa)
            return lb.soloBlancos(wb) ? 0 : -1;
        if (!wb)
            return la.soloBlancos(wa) ? 0 : 1;
        return wa < wb ? -1 : 1;
    }
}

bool empiezaCon(QStringView texto, QStringView prefijo) noexcept
{
    const std::uint64_t* t = tabla();
    Lector lt(texto, t);
    Lector lp(prefijo, t);
    for (;;) {
        const std::uint32_t wp = lp.siguiente();
        if (!wp)
            return true;
        if (lt.siguiente() != wp)
            return false;
    }
}

bool igualSinMayusculas(QStringView a, QStringView b) noexcept
{
    auto sinBlancosFinales = [](QStringView s) {
        qsizetype n = s.size();
        while (n > 0 && s[n - 1].isSpace())
            --n;
        return s.first(n);
    };
    a = sinBlancosFinales(a);
    b = sinBlancosFinales(b);
    if (a.size() != b.size())
        return false;
    for (qsizetype i = 0; i < a.size(); ++i) {
        const char16_t x = a[i].unicode();
        const char16_t y = b[i].unicode();
        if (x != y && QChar::toCaseFolded(char32_t(x)) != QChar::toCaseFolded(char32_t(y)))
            return false;
    }
    return true;
}

} // namespace nomencla::plegado
