#pragma once
// Comparison of texts the way the list's database collation sorts them:
// blanks, then punctuation and symbols, then digits, then letters; case and
// accents do not count ("Cáceres" sorts among the "Ca…"), trailing blanks are
// ignored. Works on the UTF-16 text directly, without allocating.
#include <QStringView>

namespace nomencla::plegado {

// <0, 0 or >0 as a sorts before, with, or after b.
int comparar(QStringView a, QStringView b) noexcept;

// True when the folded text of `texto` begins with the folded `prefijo`.
bool empiezaCon(QStringView texto, QStringView prefijo) noexcept;

// Case-insensitive equality (accents count): the duplicate test of the lists.
bool igualSinMayusculas(QStringView a, QStringView b) noexcept;

} // namespace nomencla::plegado
