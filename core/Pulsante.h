#pragma once
// The dialogs' push button: a caption with an access key after '&' (captions
// may begin with blanks), or a picture only. Enter in a text box never presses
// it: no Pulsante is a default button.
#include <QPushButton>

namespace nomencla {

class Pulsante : public QPushButton {
    Q_OBJECT
    Q_PROPERTY(QString tx READ tx WRITE setTx)
public:
    // An empty caption makes a picture-only button showing `icono`.
    explicit Pulsante(const QString& tx, QWidget* parent = nullptr, const QIcon& icono = {});
    QString tx() const { return tx_; }
    void setTx(const QString& tx);

private:
    QString tx_;
};

} // namespace nomencla
