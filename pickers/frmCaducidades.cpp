#include "pickers/frmCaducidades.h"

#include <QLabel>
#include <QVBoxLayout>

namespace nomencla {

frmCaducidades::frmCaducidades() : Formulario(QStringLiteral("frmCaducidades"), QStringLiteral("Lotes"), false) {}

void frmCaducidades::Disenar(QWidget* lienzo)
{
    auto* disposicion = new QVBoxLayout(lienzo);
    disposicion->addWidget(new QLabel(QStringLiteral("Lotes"), lienzo));
}

} // namespace nomencla
