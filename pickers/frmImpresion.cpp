#include "pickers/frmImpresion.h"

#include <QLabel>
#include <QVBoxLayout>

namespace nomencla {

frmImpresion::frmImpresion() : Formulario(QStringLiteral("frmImpresion"), QStringLiteral("Modelo de impresión"), false) {}

void frmImpresion::Disenar(QWidget* lienzo)
{
    auto* disposicion = new QVBoxLayout(lienzo);
    disposicion->addWidget(new QLabel(QStringLiteral("Modelo de impresión"), lienzo));
}

} // namespace nomencla
