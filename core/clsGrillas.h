#pragma once
// Grid filling and image storage.
#include <QSqlDatabase>
#include <QString>
#include <QVariantList>

namespace nomencla {

class Alfarje;

class clsGrillas {
public:
    // Empties the grid and fills it with the statement's rows in their order:
    // the n-th name of the comma list `Campos` (matched ignoring case) feeds
    // column n; a name the statement lacks gives empty cells, Null gives "".
    // A failure leaves the grid empty and throws ErrorBD.
    void LlenarGrilla(QSqlDatabase& Conexion, Alfarje* Grid, const QString& Sql, const QVariantList& valores,
                      const QString& Campos, bool A = false, bool B = true) const;

    // Limit of a stored image, in bytes.
    static constexpr qint64 tamanoMaximoImagen = 4 * 1024 * 1024;

    // Stores the file's bytes in `Campo` of the row of `Tabla` whose
    // `CampoClave` is `Clave` (and whose id is `idEmp`, when given). False when
    // the file cannot be read, is empty, larger than the limit, or the update fails.
    bool GuardarImagen(QSqlDatabase& Conexion, const QString& Tabla, const QString& Campo,
                       const QString& CampoClave, qint32 Clave, const QString& Archivo,
                       const QString& idEmp = {}) const;
};

} // namespace nomencla
