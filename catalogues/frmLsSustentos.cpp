#include "catalogues/frmLsSustentos.h"

#include <QLabel>
#include <QVBoxLayout>

namespace nomencla {

frmLsSustentos::frmLsSustentos() : Formulario(QStringLiteral("frmLsSustentos"), QStringLiteral("Sustentos tributarios SRI"), false) {}

void frmLsSustentos::Disenar(QWidget* lienzo)
{
    auto* disposicion = new QVBoxLayout(lienzo);
    disposicion->addWidget(new QLabel(QStringLiteral("Sustentos tributarios SRI"), lienzo));
}

} // namespace nomencla
