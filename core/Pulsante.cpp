#include "core/Pulsante.h"

namespace nomencla {

Pulsante::Pulsante(const QString& texto, QWidget* parent, const QIcon& icono) : QPushButton(parent)
{
    setAutoDefault(false);
    setDefault(false);
    if (!icono.isNull())
        setIcon(icono);
    setTx(texto);
}

void Pulsante::setTx(const QString& texto)
{
    tx_ = texto;
    // Leading blanks only centred the caption beside a picture; the layout does that here.
    setText(texto.trimmed());
}

} // namespace nomencla
