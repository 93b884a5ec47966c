#include "core/clsGrillas.h"

#include "core/Alfarje.h"
#include "core/BaseDatos.h"
#include "core/ModeloAlfarje.h"

#include <QFile>
#include <QRegularExpression>
#include <QSqlRecord>

using namespace Qt::StringLiterals;

namespace nomencla {

void clsGrillas::LlenarGrilla(QSqlDatabase& Conexion, Alfarje* Grid, const QString& Sql, const QVariantList& valores,
                              const QString& Campos, bool, bool) const
{
    ModeloAlfarje* modelo = Grid->modelo();
    modelo->vaciar();
    QSqlQuery q = ejecutar(Conexion, Sql, valores, true);
    const QSqlRecord registro = q.record();
    QVector<int> campos;
    for (const QString& nombre : Campos.split(u',', Qt::SkipEmptyParts)) {
        const QString n = nombre.trimmed();
        int indice = -1;
        for (int i = 0; i < registro.count(); ++i) {
            if (registro.fieldName(i).compare(n, Qt::CaseInsensitive) == 0) {
                indice = i;
                break;
            }
        }
        campos.append(indice);
    }
    if (!modelo->cargar(q, campos)) {
        const QSqlError error = q.lastError();
        modelo->vaciar();
        throw ErrorBD(error, Sql, Conexion);
    }
}

bool clsGrillas::GuardarImagen(QSqlDatabase& Conexion, const QString& Tabla, const QString& Campo,
                               const QString& CampoClave, qint32 Clave, const QString& Archivo,
                               const QString& idEmp) const
{
    static const QRegularExpression nombre(u"^[A-Za-z_][A-Za-z0-9_]*$"_s);
    if (!nombre.match(Tabla).hasMatch() || !nombre.match(Campo).hasMatch() || !nombre.match(CampoClave).hasMatch())
        return false;
    QFile archivo(Archivo);
    if (!archivo.open(QIODevice::ReadOnly) || archivo.size() <= 0 || archivo.size() > tamanoMaximoImagen)
        return false;
    const QByteArray bytes = archivo.readAll();
    if (bytes.size() != archivo.size())
        return false;
    QString sql = u"UPDATE "_s + Tabla + u" SET "_s + Campo + u"=? WHERE "_s + CampoClave + u"=?"_s;
    QVariantList valores{bytes, Clave};
    if (!idEmp.isNull()) {
        sql += u" AND id=?"_s;
        valores.append(idEmp);
    }
    try {
        ejecutar(Conexion, sql, valores);
    } catch (const ErrorBD&) {
        return false;
    }
    return true;
}

} // namespace nomencla
