#pragma once
// Reading the delimited text files that spreadsheets write: UTF-8 with or
// without a byte-order mark, UTF-16 with one ("Unicode text"), or
// Windows-1252 as older spreadsheets write it; fields separated by ';', ','
// or a tab, quoted with '"' when they hold one of them or a line break.
#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

namespace nomencla::csv {

// The file's text. `codificacion` tells which encoding was found. Fails
// (false) on bytes that no text file has (a NUL outside UTF-16).
bool decodificar(const QByteArray& bytes, QString& texto, QString* codificacion = nullptr);

// The separator of a file whose lines should have `columnas` fields: the one
// (';', tab, ',' in that order of preference) that splits the first line
// into that many, else the one that splits it into most. In a file of one
// column, a comma is text.
QChar separador(QStringView texto, int columnas);

struct Registro {
    int linea = 0;       // line of the file where the record begins, from 1
    QStringList campos;  // trimmed
};

// The records of the text; blank lines are left out.
QList<Registro> partir(QStringView texto, QChar separador);

} // namespace nomencla::csv
