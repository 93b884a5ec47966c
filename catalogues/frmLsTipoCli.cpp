#include "catalogues/frmLsTipoCli.h"

#include <QLabel>
#include <QVBoxLayout>

namespace nomencla {

frmLsTipoCli::frmLsTipoCli() : Formulario(QStringLiteral("frmLsTipoCli"), QStringLiteral("Tipos de clientes"), false) {}

void frmLsTipoCli::Disenar(QWidget* lienzo)
{
    auto* disposicion = new QVBoxLayout(lienzo);
    disposicion->addWidget(new QLabel(QStringLiteral("Tipos de clientes"), lienzo));
}

} // namespace nomencla
