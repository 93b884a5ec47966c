#include "catalogues/frmLsCargos.h"

#include <QLabel>
#include <QVBoxLayout>

namespace nomencla {

frmLsCargos::frmLsCargos() : Formulario(QStringLiteral("frmLsCargos"), QStringLiteral("Administración de cargos"), false) {}

void frmLsCargos::Disenar(QWidget* lienzo)
{
    auto* disposicion = new QVBoxLayout(lienzo);
    disposicion->addWidget(new QLabel(QStringLiteral("Administración de cargos"), lienzo));
}

} // namespace nomencla
