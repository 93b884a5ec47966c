#pragma once
// A statement of a dialog's table of statements, with the order of the values
// that its placeholders take. Lets a family of dialogs state its statements
// as data and bind them in one place.
#include <QString>
#include <QVariantList>
#include <initializer_list>
#include <vector>

namespace nomencla {

// What a placeholder takes: the company key, or the dialog's n-th value.
enum class Valor { Empresa, V0, V1, V2, V3, V4, V5, V6, V7 };

struct Sentencia {
    QString sql;
    std::vector<Valor> valores;

    Sentencia() = default;
    Sentencia(QString texto, std::initializer_list<Valor> orden) : sql(std::move(texto)), valores(orden) {}
    bool vacia() const { return sql.isEmpty(); }

    // The values in placeholder order, from the company key and the dialog's values.
    QVariantList enlazar(const QString& idEmp, const QVariantList& propios = {}) const
    {
        QVariantList r;
        r.reserve(qsizetype(valores.size()));
        for (Valor v : valores) {
            if (v == Valor::Empresa)
                r.append(idEmp);
            else
                r.append(propios.value(int(v) - int(Valor::V0)));
        }
        return r;
    }
};

} // namespace nomencla
