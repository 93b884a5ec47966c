#include "pickers/frmPendientes.h"

#include <QLabel>
#include <QVBoxLayout>

namespace nomencla {

frmPendientes::frmPendientes() : Formulario(QStringLiteral("frmPendientes"), QStringLiteral("Documentos pendientes"), false) {}

void frmPendientes::Disenar(QWidget* lienzo)
{
    auto* disposicion = new QVBoxLayout(lienzo);
    disposicion->addWidget(new QLabel(QStringLiteral("Documentos pendientes"), lienzo));
}

} // namespace nomencla
