#include "company/frmSucursales.h"

#include <QLabel>
#include <QVBoxLayout>

namespace nomencla {

frmSucursales::frmSucursales() : Formulario(QStringLiteral("frmSucursales"), QStringLiteral("Sucursales"), false) {}

void frmSucursales::Disenar(QWidget* lienzo)
{
    auto* disposicion = new QVBoxLayout(lienzo);
    disposicion->addWidget(new QLabel(QStringLiteral("Sucursales"), lienzo));
}

} // namespace nomencla
