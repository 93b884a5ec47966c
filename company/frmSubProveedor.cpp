#include "company/frmSubProveedor.h"

#include <QLabel>
#include <QVBoxLayout>

namespace nomencla {

frmSubProveedor::frmSubProveedor() : Formulario(QStringLiteral("frmSubProveedor"), QStringLiteral("Subproveedores"), false) {}

void frmSubProveedor::Disenar(QWidget* lienzo)
{
    auto* disposicion = new QVBoxLayout(lienzo);
    disposicion->addWidget(new QLabel(QStringLiteral("Subproveedores"), lienzo));
}

} // namespace nomencla
