#include "catalogues/frmLsZona.h"

#include <QLabel>
#include <QVBoxLayout>

namespace nomencla {

frmLsZona::frmLsZona() : Formulario(QStringLiteral("frmLsZona"), QStringLiteral("Zonas de clientes"), false) {}

void frmLsZona::Disenar(QWidget* lienzo)
{
    auto* disposicion = new QVBoxLayout(lienzo);
    disposicion->addWidget(new QLabel(QStringLiteral("Zonas de clientes"), lienzo));
}

} // namespace nomencla
