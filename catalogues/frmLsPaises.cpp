#include "catalogues/frmLsPaises.h"

#include <QLabel>
#include <QVBoxLayout>

namespace nomencla {

frmLsPaises::frmLsPaises() : Formulario(QStringLiteral("frmLsPaises"), QStringLiteral("Países"), false) {}

void frmLsPaises::Disenar(QWidget* lienzo)
{
    auto* disposicion = new QVBoxLayout(lienzo);
    disposicion->addWidget(new QLabel(QStringLiteral("Países"), lienzo));
}

} // namespace nomencla
