#include "core/Controles.h"

#include <QFileDialog>
#include <QKeyEvent>
#include <QMimeData>
#include <QRegularExpression>
#include <QTextCursor>
#include <QToolTip>
#include <QValidator>

using namespace Qt::StringLiterals;

namespace nomencla {

int codigoTecla(const QKeyEvent* evento)
{
    switch (evento->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter: return vbKeyReturn;
    case Qt::Key_Escape: return vbKeyEscape;
    case Qt::Key_Backspace: return vbKeyBack;
    case Qt::Key_Tab: return 9;
    default: break;
    }
    if (evento->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return 0;
    const QString texto = evento->text();
    if (texto.isEmpty() || !texto.at(0).isPrint())
        return 0;
    return texto.at(0).unicode();
}

QLocale localeEcuador()
{
    return QLocale(QLocale::Spanish, QLocale::Ecuador);
}

// Lets the handler see the key. Returns the key as the handler left it: the
// original code to go on as usual, 0 to swallow it, or another character.
template <class Widget>
static int filtrarTecla(Widget* caja, const QKeyEvent* evento, int& original)
{
    original = codigoTecla(evento);
    if (original == 0)
        return -1;
    int codigo = original;
    Q_EMIT caja->KeyPress(codigo);
    return codigo;
}

// A character put in place of the typed one.
static QKeyEvent teclaCambiada(const QKeyEvent* evento, int codigo)
{
    return QKeyEvent(evento->type(), 0, evento->modifiers(), QString(QChar(codigo)));
}

// The first `largo` units of a text, without the half of a character (an
// emoji) that the cut would leave.
static QString cortar(const QString& texto, qsizetype largo)
{
    QString r = texto.left(largo);
    if (r.size() < texto.size() && !r.isEmpty() && r.back().isHighSurrogate())
        r.chop(1);
    return r;
}

// Typed or pasted text: control characters (a Tab, a line break pasted from
// elsewhere) become blanks, so that what is stored is what the box shows; a
// character cut in half at the limit goes.
class SinControles : public QValidator {
public:
    using QValidator::QValidator;
    // Numbers only: a text that isn't one (a paste, mostly; typed keys are
    // filtered before) is refused and a tip under the box says why.
    void soloNumero(int decimales, bool negativo)
    {
        numero_ = QRegularExpression(u"^\\s*%1\\d*%2\\s*$"_s.arg(negativo ? u"-?"_s : QString(),
                                                                decimales > 0 ? u"(\\.\\d*)?"_s : QString()));
    }
    State validate(QString& texto, int& posicion) const override
    {
        for (QChar& c : texto)
            if (c.category() == QChar::Other_Control)
                c = u' ';
        if (!numero_.pattern().isEmpty()) {
            texto.replace(u',', u'.'); // the decimal mark as typed
            if (!numero_.match(texto).hasMatch()) {
                if (auto* caja = qobject_cast<QWidget*>(parent()))
                    QToolTip::showText(caja->mapToGlobal(QPoint(0, caja->height())),
                                       u"Este campo solo admite números"_s, caja);
                return Invalid;
            }
        }
        for (qsizetype i = 0; i < texto.size(); ++i) {
            const bool par = texto[i].isHighSurrogate() ? i + 1 < texto.size() && texto[i + 1].isLowSurrogate()
                                                       : !texto[i].isLowSurrogate();
            if (texto[i].isHighSurrogate() && par)
                ++i;
            else if (!par) {
                texto.remove(i--, 1);
                posicion = std::min<int>(posicion, int(texto.size()));
            }
        }
        return Acceptable;
    }

private:
    QRegularExpression numero_;
};

CajaTexto::CajaTexto(QWidget* parent, int maxLength) : QLineEdit(parent)
{
    setMaxLength(maxLength);
    validador_ = new SinControles(this);
    setValidator(validador_);
    connect(this, &QLineEdit::textChanged, this, [this] { Q_EMIT Change(); });
}

void CajaTexto::setSoloNumero(int decimales, bool negativo)
{
    validador_->soloNumero(decimales, negativo);
}

void CajaTexto::keyPressEvent(QKeyEvent* evento)
{
    int original = 0;
    const int codigo = filtrarTecla(this, evento, original);
    if (codigo == 0) {
        evento->accept();
        return;
    }
    if (codigo > 0 && codigo != original) {
        if (codigo >= 32) {
            QKeyEvent otra = teclaCambiada(evento, codigo);
            QLineEdit::keyPressEvent(&otra);
        }
        return;
    }
    QLineEdit::keyPressEvent(evento);
    // Enter and Esc travel on to the form, which decides what they do.
    if (evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter || evento->key() == Qt::Key_Escape)
        evento->ignore();
}

void CajaTexto::keyReleaseEvent(QKeyEvent* evento)
{
    QLineEdit::keyReleaseEvent(evento);
    int shift = 0;
    if (evento->modifiers() & Qt::ShiftModifier) shift |= 1;
    if (evento->modifiers() & Qt::ControlModifier) shift |= 2;
    if (evento->modifiers() & Qt::AltModifier) shift |= 4;
    int codigo = evento->key();
    if (codigo == Qt::Key_Down) codigo = vbKeyDown;
    else if (codigo == Qt::Key_Up) codigo = 38;
    else if (codigo == Qt::Key_Return || codigo == Qt::Key_Enter) codigo = vbKeyReturn;
    Q_EMIT KeyUp(codigo, shift);
}

CajaTextoMultilinea::CajaTextoMultilinea(QWidget* parent, int maxLength)
    : QPlainTextEdit(parent), maxLength_(maxLength)
{
    setTabChangesFocus(true);
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        limitar();
        const QString ahora = toPlainText();
        if (ahora != anterior_) {
            anterior_ = ahora;
            Q_EMIT Change();
        }
    });
}

void CajaTextoMultilinea::setText(const QString& texto)
{
    setPlainText(cortar(texto, maxLength_));
}

void CajaTextoMultilinea::setMaxLength(int n)
{
    maxLength_ = n;
    limitar();
}

void CajaTextoMultilinea::limitar()
{
    const QString texto = toPlainText();
    if (texto.size() <= maxLength_)
        return;
    QTextCursor cursor = textCursor();
    const int posicion = std::min<int>(cursor.position(), maxLength_);
    const QSignalBlocker bloqueo(this);
    setPlainText(cortar(texto, maxLength_));
    cursor = textCursor();
    cursor.setPosition(std::min<int>(posicion, int(toPlainText().size())));
    setTextCursor(cursor);
}

void CajaTextoMultilinea::keyPressEvent(QKeyEvent* evento)
{
    int original = 0;
    const int filtrado = filtrarTecla(this, evento, original);
    if (filtrado == 0) {
        evento->accept();
        return;
    }
    if (filtrado > 0 && filtrado != original) {
        if (filtrado >= 32) {
            QKeyEvent otra = teclaCambiada(evento, filtrado);
            QPlainTextEdit::keyPressEvent(&otra);
        }
        return;
    }
    if (evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter || evento->key() == Qt::Key_Escape) {
        evento->ignore();
        return;
    }
    const int codigo = codigoTecla(evento);
    if (codigo >= 32 && toPlainText().size() - textCursor().selectedText().size() >= maxLength_) {
        evento->accept();
        return;
    }
    QPlainTextEdit::keyPressEvent(evento);
}

void CajaTextoMultilinea::insertFromMimeData(const QMimeData* origen)
{
    if (!origen || !origen->hasText())
        return;
    const int libre = maxLength_ - int(toPlainText().size()) + int(textCursor().selectedText().size());
    if (libre > 0)
        insertPlainText(cortar(origen->text(), libre));
}

Etiqueta::Etiqueta(const QString& texto, QWidget* parent) : QLabel(texto, parent)
{
    setTextFormat(Qt::PlainText);
}

void Etiqueta::setText(const QString& texto)
{
    if (texto == text())
        return;
    QLabel::setText(texto);
    Q_EMIT TextoCambiado();
}

void Etiqueta::setBackColor(quint32 color)
{
    color_ = color;
    QPalette paleta = palette();
    if (color == colorCaraBoton) {
        setAutoFillBackground(true);
        paleta.setColor(QPalette::Window, paleta.color(QPalette::Button));
    } else {
        setAutoFillBackground(true);
        paleta.setColor(QPalette::Window, QColor(QRgb(color & 0xFFFFFF)));
        paleta.setColor(QPalette::WindowText, Qt::black);
    }
    setPalette(paleta);
}

Combo::Combo(QWidget* parent) : QComboBox(parent)
{
    setEditable(false);
}

bool Combo::setText(const QString& texto)
{
    const int i = findText(texto, Qt::MatchFixedString | Qt::MatchCaseSensitive);
    setCurrentIndex(i);
    return i >= 0;
}

Casilla::Casilla(const QString& texto, QWidget* parent) : QCheckBox(texto, parent)
{
    connect(this, &QCheckBox::toggled, this, [this] { Q_EMIT Click(); });
}

SelectorFecha::SelectorFecha(const QString& formato, QWidget* parent) : QDateEdit(parent)
{
    setLocale(localeEcuador());
    setCalendarPopup(true);
    setDisplayFormat(formato);
    setDate(QDate::currentDate());
    connect(this, &QDateEdit::dateChanged, this, [this] { Q_EMIT Change(); });
}

void SelectorFecha::keyPressEvent(QKeyEvent* evento)
{
    int codigo = codigoTecla(evento);
    if (codigo != 0) {
        Q_EMIT KeyPress(codigo);
        if (codigo == 0)
            return;
    }
    QDateEdit::keyPressEvent(evento);
    Q_EMIT CallbackKeyDown();
    if (evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter || evento->key() == Qt::Key_Escape)
        evento->ignore();
}

static ElectorArchivo& electorActual()
{
    static thread_local ElectorArchivo elector;
    return elector;
}

QString elegirArchivo(QWidget* padre, const QString& titulo, const QString& filtro)
{
    if (electorActual())
        return electorActual()(padre, titulo, filtro);
    return QFileDialog::getOpenFileName(padre, titulo, QString(), filtro);
}

void setElectorArchivo(ElectorArchivo elector)
{
    electorActual() = std::move(elector);
}

} // namespace nomencla
