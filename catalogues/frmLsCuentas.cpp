#include "catalogues/frmLsCuentas.h"

#include <QLabel>
#include <QVBoxLayout>

namespace nomencla {

frmLsCuentas::frmLsCuentas() : Formulario(QStringLiteral("frmLsCuentas"), QStringLiteral("Cuentas"), false) {}

void frmLsCuentas::Disenar(QWidget* lienzo)
{
    auto* disposicion = new QVBoxLayout(lienzo);
    disposicion->addWidget(new QLabel(QStringLiteral("Cuentas"), lienzo));
}

} // namespace nomencla
