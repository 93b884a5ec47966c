#include "catalogues/frmLsDocAutSRI.h"

#include <QLabel>
#include <QVBoxLayout>

namespace nomencla {

frmLsDocAutSRI::frmLsDocAutSRI() : Formulario(QStringLiteral("frmLsDocAutSRI"), QStringLiteral("Documentos autorizados SRI"), false) {}

void frmLsDocAutSRI::Disenar(QWidget* lienzo)
{
    auto* disposicion = new QVBoxLayout(lienzo);
    disposicion->addWidget(new QLabel(QStringLiteral("Documentos autorizados SRI"), lienzo));
}

} // namespace nomencla
