#include "catalogues/frmLsBancos.h"

#include <QLabel>
#include <QVBoxLayout>

namespace nomencla {

frmLsBancos::frmLsBancos() : Formulario(QStringLiteral("frmLsBancos"), QStringLiteral("Bancos"), false) {}

void frmLsBancos::Disenar(QWidget* lienzo)
{
    auto* disposicion = new QVBoxLayout(lienzo);
    disposicion->addWidget(new QLabel(QStringLiteral("Bancos"), lienzo));
}

} // namespace nomencla
