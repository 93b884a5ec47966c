#include "pickers/frmListaFacPaga.h"

#include <QLabel>
#include <QVBoxLayout>

namespace nomencla {

frmListaFacPaga::frmListaFacPaga() : Formulario(QStringLiteral("frmListaFacPaga"), QStringLiteral("Facturas canceladas"), false) {}

void frmListaFacPaga::Disenar(QWidget* lienzo)
{
    auto* disposicion = new QVBoxLayout(lienzo);
    disposicion->addWidget(new QLabel(QStringLiteral("Facturas canceladas"), lienzo));
}

} // namespace nomencla
