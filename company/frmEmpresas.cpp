#include "company/frmEmpresas.h"

#include <QLabel>
#include <QVBoxLayout>

namespace nomencla {

frmEmpresas::frmEmpresas() : Formulario(QStringLiteral("frmEmpresas"), QStringLiteral("Empresas"), false) {}

void frmEmpresas::Disenar(QWidget* lienzo)
{
    auto* disposicion = new QVBoxLayout(lienzo);
    disposicion->addWidget(new QLabel(QStringLiteral("Empresas"), lienzo));
}

} // namespace nomencla
