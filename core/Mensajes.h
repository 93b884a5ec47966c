#pragma once
// Message boxes of the dialogs: real modal QMessageBoxes with the styles the
// program uses, returning the button pressed as the program tests it.
#include <QString>

class QWidget;

namespace nomencla {

class ErrorBD;

namespace estilo {
constexpr int Critico = 16;          // critical icon, OK
constexpr int Exclamacion = 48;      // exclamation icon, OK
constexpr int Informacion = 64;      // information icon, OK
constexpr int PreguntaSiNo = 36;     // question icon, Yes / No
constexpr int ExclamacionSiNo = 52;  // exclamation icon, Yes / No
} // namespace estilo

constexpr int vbOK = 1;
constexpr int vbYes = 6;
constexpr int vbNo = 7;

// Shows `texto` under `titulo` with the style's icon and buttons; returns
// vbOK, vbYes or vbNo (closing a Yes/No box counts as No).
int MsgBox(QWidget* padre, const QString& texto, int estilo, const QString& titulo);

// The critical box of a failed database operation, titled
// "Error de base de datos", with the driver's text.
void mostrarErrorBD(QWidget* padre, const ErrorBD& error);

} // namespace nomencla
