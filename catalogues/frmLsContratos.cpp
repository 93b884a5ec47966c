#include "catalogues/frmLsContratos.h"

#include <QLabel>
#include <QVBoxLayout>

namespace nomencla {

frmLsContratos::frmLsContratos() : Formulario(QStringLiteral("frmLsContratos"), QStringLiteral("Contratos"), false) {}

void frmLsContratos::Disenar(QWidget* lienzo)
{
    auto* disposicion = new QVBoxLayout(lienzo);
    disposicion->addWidget(new QLabel(QStringLiteral("Contratos"), lienzo));
}

} // namespace nomencla
