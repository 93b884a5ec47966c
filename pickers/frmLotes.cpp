#include "pickers/frmLotes.h"

#include <QLabel>
#include <QVBoxLayout>

namespace nomencla {

frmLotes::frmLotes() : Formulario(QStringLiteral("frmLotes"), QStringLiteral("Lote"), false) {}

void frmLotes::Disenar(QWidget* lienzo)
{
    auto* disposicion = new QVBoxLayout(lienzo);
    disposicion->addWidget(new QLabel(QStringLiteral("Lote"), lienzo));
}

} // namespace nomencla
