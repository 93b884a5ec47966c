#include "pickers/frmListaFechasIVA.h"

#include <QLabel>
#include <QVBoxLayout>

namespace nomencla {

frmListaFechasIVA::frmListaFechasIVA() : Formulario(QStringLiteral("frmListaFechasIVA"), QStringLiteral("Fechas de IVA diferenciado"), false) {}

void frmListaFechasIVA::Disenar(QWidget* lienzo)
{
    auto* disposicion = new QVBoxLayout(lienzo);
    disposicion->addWidget(new QLabel(QStringLiteral("Fechas de IVA diferenciado"), lienzo));
}

} // namespace nomencla
