#pragma once
// First paint of a dialog's list, timed from the call of the public method.
#include <QElapsedTimer>
#include <QEvent>
#include <QPointer>
#include <QTimer>
#include <QWidget>

// Watches a dialog opened through the public class: when it is shown,
// when its list first paints, and then closes it.
class Cronometro : public QObject {
public:
    explicit Cronometro(QString forma) : forma_(std::move(forma)) {}
    QElapsedTimer reloj;
    qint64 mostrado = -1, pintado = -1, cierre = -1;
    QPointer<QWidget> dialogo;

protected:
    bool eventFilter(QObject* o, QEvent* e) override
    {
        if (e->type() == QEvent::Show && o->objectName() == forma_ && mostrado < 0) {
            mostrado = reloj.nsecsElapsed();
            dialogo = static_cast<QWidget*>(o);
        } else if (e->type() == QEvent::Paint && pintado < 0 && dialogo && o->parent()
                   && o->parent()->objectName() == QLatin1StringView("GR")) {
            // Let the paint itself finish before the close is asked for.
            QTimer::singleShot(0, this, [this] {
                pintado = reloj.nsecsElapsed();
                cierre = reloj.nsecsElapsed();
                QMetaObject::invokeMethod(dialogo.data(), "reject");
            });
        }
        return false;
    }

private:
    QString forma_;
};

