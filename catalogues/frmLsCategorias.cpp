#include "catalogues/frmLsCategorias.h"

#include <QLabel>
#include <QVBoxLayout>

namespace nomencla {

frmLsCategorias::frmLsCategorias() : Formulario(QStringLiteral("frmLsCategorias"), QStringLiteral("Categorías de clientes"), false) {}

void frmLsCategorias::Disenar(QWidget* lienzo)
{
    auto* disposicion = new QVBoxLayout(lienzo);
    disposicion->addWidget(new QLabel(QStringLiteral("Categorías de clientes"), lienzo));
}

} // namespace nomencla
