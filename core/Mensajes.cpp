#include "core/Mensajes.h"

#include "core/BaseDatos.h"
#include "core/Conflictos.h"

#include <QAbstractButton>
#include <QMessageBox>

using namespace Qt::StringLiterals;

namespace nomencla {

int MsgBox(QWidget* padre, const QString& texto, int estiloCaja, const QString& titulo)
{
    QMessageBox caja(padre);
    caja.setWindowModality(Qt::ApplicationModal);
    caja.setText(texto);
    caja.setWindowTitle(titulo);
    const bool siNo = (estiloCaja & 0x7) == 4;
    switch (estiloCaja & 0x70) {
    case 16: caja.setIcon(QMessageBox::Critical); break;
    case 32: caja.setIcon(QMessageBox::Question); break;
    case 48: caja.setIcon(QMessageBox::Warning); break;
    case 64: caja.setIcon(QMessageBox::Information); break;
    default: caja.setIcon(QMessageBox::NoIcon); break;
    }
    if (siNo) {
        caja.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        caja.setDefaultButton(QMessageBox::Yes);
        caja.setEscapeButton(QMessageBox::No);
        caja.button(QMessageBox::Yes)->setText(u"&Sí"_s);
        caja.button(QMessageBox::No)->setText(u"&No"_s);
    } else {
        caja.setStandardButtons(QMessageBox::Ok);
        caja.button(QMessageBox::Ok)->setText(u"Aceptar"_s);
    }
    const int respuesta = caja.exec();
    if (siNo)
        return respuesta == QMessageBox::Yes ? vbYes : vbNo;
    return vbOK;
}

void mostrarErrorBD(QWidget* padre, const ErrorBD& error)
{
    QString texto = error.texto();
    if (esConexionPerdida(error.error())) {
        // The connection is opened again at once, so that the next operation can work.
        const bool otraVez = reconectar(error.conexion());
        texto = u"Se perdió la conexión con la base de datos y la operación no se completó.\n"_s
            + (otraVez ? u"La conexión se restableció: revise los datos y repita la operación."_s
                       : u"No se pudo restablecer la conexión: cierre esta ventana e intente más tarde."_s)
            + u"\n\n"_s + texto;
    } else if (esNodoFueraDelGrupo(error.error())) {
        texto = u"El servidor de la base de datos al que está conectado se separó de los demás servidores del grupo "
                "y no acepta operaciones; la operación no se hizo.\nIntente más tarde o conéctese a otro servidor."
                "\n\n"_s + texto;
    } else if (esConflicto(error)) {
        texto = u"Otros usuarios modificaban los mismos datos al mismo tiempo y la operación no se pudo completar "
                "tras varios intentos; no se guardó nada.\nRepita la operación en unos momentos.\n\n"_s + texto;
    }
    MsgBox(padre, texto, estilo::Critico, u"Error de base de datos"_s);
}

} // namespace nomencla
