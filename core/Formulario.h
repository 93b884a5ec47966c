#pragma once
// Base of every dialog. A dialog instance lives as long as the thread's shared
// state and is shown many times; each Show() builds its controls afresh with
// their designed values (Disenar), runs Form_Load and shows the dialog
// modally until it is closed (by Unload, Esc where the form lets it, a
// button, a pick or the title bar). The controls are destroyed at the close;
// the form-level variables of the subclass stay for the next opening.
#include <QDialog>
#include <QPointer>
#include <QString>
#include <functional>

namespace nomencla {

class Alfarje;
class CajaTexto;
class ErrorBD;

class Formulario : public QDialog {
    Q_OBJECT
public:
    // `nombre` is the form's name (its objectName), `titulo` its caption.
    // With `keyPreview` the form sees every key before the focused control;
    // without it, only keys that reach the form while no control takes them.
    Formulario(const QString& nombre, const QString& titulo, bool keyPreview);
    ~Formulario() override;

    // Loads the form and shows it modally, over `owner` when given. Returns
    // when it is closed.
    void Show(QWidget* owner = nullptr);
    // Closes the form; safe from any of its handlers, also during Form_Load.
    void Unload();
    bool cargado() const { return lienzo_ != nullptr; }
    bool keyPreview() const { return keyPreview_; }

    // Runs one user operation (a save, a removal, a fill): a conflict with
    // another session's write runs it again from its start (conReintentos),
    // so `paso` must be safe to run again; any other database failure, or a
    // conflict that outlasts the tries, is shown in a critical box and ends
    // the operation; the dialog stays open and usable. Returns false when the
    // operation failed.
    bool operacion(const std::function<void()>& paso);

protected:
    // Builds the controls into `lienzo` with their designed values.
    virtual void Disenar(QWidget* lienzo) = 0;
    virtual void Form_Load() {}
    virtual void Form_Activate() {}
    // Esc closes by default.
    virtual void Form_KeyPress(int& KeyAscii);
    // Called after the controls are gone.
    virtual void Form_Unload() {}

    QWidget* lienzo() const { return lienzo_; }

    // The search as the user types: each change of `caja` selects in `grilla`
    // the first row whose cell in `columna` begins with the raw text, in the
    // collation's order; no match selects nothing.
    void buscarAlTeclear(CajaTexto* caja, Alfarje* grilla, int columna = 0);
    // Runs `mostrar` (a pick filling the fields from a row) with those searches
    // off: the fields take the picked row's own cells, and the grid stays on it
    // though another row's text begins alike ("Medico" and "Médico").
    void sinBuscar(const std::function<void()>& mostrar);

    // A named child control of the current load: "Bt(0)", "Tx(2)"...
    template <class T> T* ctl(const QString& nombre) const
    {
        return lienzo_ ? lienzo_->findChild<T*>(nombre) : nullptr;
    }

    bool eventFilter(QObject* objeto, QEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void showEvent(QShowEvent* evento) override;
    void done(int resultado) override;

private:
    QWidget* lienzo_ = nullptr;
    bool keyPreview_;
    bool cerrarPedido_ = false;
    bool activado_ = false;
    bool enEjecucion_ = false;
    bool mostrando_ = false;
    void vigilarTeclas(QWidget* raiz);
};

} // namespace nomencla
