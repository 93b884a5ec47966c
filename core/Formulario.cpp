#include "core/Formulario.h"

#include "core/Alfarje.h"
#include "core/Accesibilidad.h"
#include "core/BaseDatos.h"
#include "core/Conflictos.h"
#include "core/Controles.h"
#include "core/Mensajes.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLayout>
#include <QTimer>
#include <QVBoxLayout>
#include <utility>

namespace nomencla {

Formulario::Formulario(const QString& nombre, const QString& titulo, bool keyPreview)
    : QDialog(nullptr), keyPreview_(keyPreview)
{
    setObjectName(nombre);
    setWindowTitle(titulo);
    setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint | Qt::MSWindowsFixedSizeDialogHint);
    setModal(true);
    auto* disposicion = new QVBoxLayout(this);
    disposicion->setContentsMargins(0, 0, 0, 0);
    disposicion->setSizeConstraint(QLayout::SetFixedSize);
}

Formulario::~Formulario() = default;

void Formulario::Show(QWidget* owner)
{
    if (enEjecucion_)
        return;
    enEjecucion_ = true;
    cerrarPedido_ = false;
    activado_ = false;
    const Qt::WindowFlags banderas = windowFlags();
    if (owner)
        setParent(owner, banderas);

    lienzo_ = new QWidget(this);
    lienzo_->setObjectName(QStringLiteral("lienzo"));
    Disenar(lienzo_);
    layout()->addWidget(lienzo_);
    prepararAccesibilidad(this, lienzo_);
    if (keyPreview_)
        vigilarTeclas(lienzo_);

    Form_Load();
    if (!cerrarPedido_)
        exec();

    delete lienzo_;
    lienzo_ = nullptr;
    if (owner)
        setParent(nullptr, banderas);
    enEjecucion_ = false;
    Form_Unload();
}

void Formulario::Unload()
{
    cerrarPedido_ = true;
    if (isVisible())
        reject();
}

void Formulario::done(int resultado)
{
    cerrarPedido_ = true;
    QDialog::done(resultado);
}

bool Formulario::operacion(const std::function<void()>& paso)
{
    try {
        conReintentos(paso);
        return true;
    } catch (const ErrorBD& error) {
        mostrarErrorBD(this, error);
        return false;
    }
}

void Formulario::buscarAlTeclear(CajaTexto* caja, Alfarje* grilla, int columna)
{
    connect(caja, &CajaTexto::Change, this, [this, caja, grilla, columna] {
        if (!mostrando_)
            grilla->setRow(grilla->FindRow(caja->text(), columna, 5, false));
    });
}

void Formulario::sinBuscar(const std::function<void()>& mostrar)
{
    // Restored however `mostrar` ends; a pick inside a pick keeps it off.
    const bool antes = std::exchange(mostrando_, true);
    struct Restaurar {
        bool& bandera;
        bool valor;
        ~Restaurar() { bandera = valor; }
    } restaurar{mostrando_, antes};
    mostrar();
}

void Formulario::Form_KeyPress(int& KeyAscii)
{
    if (KeyAscii == vbKeyEscape)
        Unload();
}

void Formulario::vigilarTeclas(QWidget* raiz)
{
    const auto hijos = raiz->findChildren<QWidget*>();
    for (QWidget* w : hijos)
        w->installEventFilter(this);
}

bool Formulario::eventFilter(QObject* objeto, QEvent* evento)
{
    if (keyPreview_ && evento->type() == QEvent::KeyPress && objeto->isWidgetType()
        && static_cast<QWidget*>(objeto)->window() == this) {
        auto* tecla = static_cast<QKeyEvent*>(evento);
        // A popup (a combo's list, a calendar) keeps its own keys.
        if (QApplication::activePopupWidget() == nullptr) {
            int codigo = codigoTecla(tecla);
            if (codigo != 0) {
                Form_KeyPress(codigo);
                if (codigo == 0 || !isVisible())
                    return true;
            }
        }
    }
    return QDialog::eventFilter(objeto, evento);
}

void Formulario::keyPressEvent(QKeyEvent* evento)
{
    // Keys that no control took. With KeyPreview they were seen already; the
    // form has no default button, and Esc closes only through Form_KeyPress.
    if (!keyPreview_) {
        QWidget* foco = focusWidget();
        if (foco == nullptr || foco == this) {
            int codigo = codigoTecla(evento);
            if (codigo != 0)
                Form_KeyPress(codigo);
        }
    }
    evento->accept();
}

void Formulario::showEvent(QShowEvent* evento)
{
    QDialog::showEvent(evento);
    if (!activado_) {
        activado_ = true;
        QTimer::singleShot(0, this, [this] {
            if (isVisible())
                Form_Activate();
        });
    }
}

} // namespace nomencla
