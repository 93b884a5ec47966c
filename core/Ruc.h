#pragma once
// Ecuadorian tax numbers: a cédula (10 digits) or a RUC (13 digits). The check
// points out a number that cannot be right and never refuses one: whatever
// is not 10 or 13 digits (a foreign tax number, a passport) is not judged.
//   cédula: province 01-24 or 30, third digit 0-6, modulo-10 check digit
//           (coefficients 2,1,2,1,... over the first nine digits).
//   RUC:    province, establishment (last three) other than 000; third digit
//           0-5 a natural person, whose first ten digits are a cédula; 6
//           (public entities) and 9 (companies) are checked for structure
//           only: the tax authority does not issue them by an algorithm, and
//           many real ones fail the modulo-11 checks of older validators.
#include <QString>
#include <QStringView>

class QLabel;
class QLineEdit;
class QWidget;

namespace nomencla::ruc {

// Why the number cannot be right; empty when it may be or is not judged.
QString problema(QStringView texto);

// The warning beside a RUC box: a label "LblRuc", hidden while there is
// nothing to point out, its reason in the tooltip. It is checked when the
// clerk leaves the box and, once shown, as the number is corrected; call
// revisar() when the dialog puts a record in the box.
QLabel* crearAviso(QLineEdit* caja, QWidget* padre);
void revisar(QLabel* aviso, const QString& texto);

} // namespace nomencla::ruc
