#include "catalogues/frmMedidas.h"

#include <QLabel>
#include <QVBoxLayout>

namespace nomencla {

frmMedidas::frmMedidas() : Formulario(QStringLiteral("frmMedidas"), QStringLiteral("Unidades de medida"), false) {}

void frmMedidas::Disenar(QWidget* lienzo)
{
    auto* disposicion = new QVBoxLayout(lienzo);
    disposicion->addWidget(new QLabel(QStringLiteral("Unidades de medida"), lienzo));
}

} // namespace nomencla
