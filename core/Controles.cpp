#include "core/Controles.h"

#include <QFileDialog>
#include <QKeyEvent>
#include <QTextDocument>
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

qsizetype caracteres(QStringView texto)
{
    qsizetype n = texto.size();
    for (qsizetype i = 1; i < texto.size(); ++i)
        if (texto[i].isLowSurrogate() && texto[i - 1].isHighSurrogate())
            --n;
    return n;
}

// The first `largo` characters of a text; an emoji is never cut in half.
static QString cortar(const QString& texto, qsizetype largo)
{
    qsizetype i = 0;
    for (; i < texto.size() && largo > 0; --largo)
        i += texto[i].isHighSurrogate() && i + 1 < texto.size() && texto[i + 1].isLowSurrogate() ? 2 : 1;
    return texto.left(i);
}

// One edit of a box: what it put at `inicio` in place of `quitado` units of
// the text before. Found as what lies between the common beginning and the
// common end of the texts before and after, never inside an emoji.
struct Edicion {
    qsizetype inicio = 0;
    qsizetype quitado = 0;
    QString puesto;
};

static Edicion edicion(const QString& antes, const QString& despues)
{
    const qsizetype menor = std::min(antes.size(), despues.size());
    qsizetype a = 0;
    while (a < menor && antes[a] == despues[a])
        ++a;
    if (a > 0 && despues[a - 1].isHighSurrogate())
        --a;
    qsizetype b = 0;
    while (b < menor - a && antes[antes.size() - 1 - b] == despues[despues.size() - 1 - b])
        ++b;
    if (b > 0 && despues[despues.size() - b].isLowSurrogate())
        --b;
    return {a, antes.size() - a - b, despues.mid(a, despues.size() - a - b)};
}

// What the edit may put in: as many characters as leave the text within
// `maximo` (none while a longer text set by the program is still there).
static void limitar(Edicion& e, const QString& antes, int maximo)
{
    const qsizetype resto = caracteres(antes) - caracteres(QStringView(antes).mid(e.inicio, e.quitado));
    e.puesto = cortar(e.puesto, std::max<qsizetype>(0, maximo - resto));
}

// Typed or pasted text: control characters (a Tab, a line break pasted from
// elsewhere) become blanks, so that what is stored is what the box shows; the
// text is kept to MaxLength characters. A text set by the program (the box
// has nothing to undo then) is taken as it is.
class SinControles : public QValidator {
public:
    explicit SinControles(CajaTexto* caja) : QValidator(caja), caja_(caja) {}
    // Numbers only: a text that isn't one (a paste, mostly; typed keys are
    // filtered before) is refused and a tip under the box says why.
    void soloNumero(int decimales, bool negativo)
    {
        numero_ = QRegularExpression(u"^\\s*%1\\d*%2\\s*$"_s.arg(negativo ? u"-?"_s : QString(),
                                                                decimales > 0 ? u"(\\.\\d*)?"_s : QString()));
    }
    State validate(QString& texto, int& posicion) const override
    {
        if (!caja_->isUndoAvailable())
            return Acceptable;
        const QString& antes = caja_->anterior_;
        Edicion e = edicion(antes, texto);
        QString& puesto = e.puesto;
        for (QChar& c : puesto)
            if (c.category() == QChar::Other_Control)
                c = u' ';
        if (!numero_.pattern().isEmpty())
            puesto.replace(u',', u'.'); // the decimal mark as typed
        for (qsizetype i = 0; i < puesto.size(); ++i) {
            if (puesto[i].isHighSurrogate() && i + 1 < puesto.size() && puesto[i + 1].isLowSurrogate())
                ++i;
            else if (puesto[i].isSurrogate())
                puesto.remove(i--, 1);
        }
        limitar(e, antes, caja_->maxLength_);
        const QString nuevo = antes.left(e.inicio) + puesto + antes.mid(e.inicio + e.quitado);
        if (!numero_.pattern().isEmpty() && !numero_.match(nuevo).hasMatch()) {
            QToolTip::showText(caja_->mapToGlobal(QPoint(0, caja_->height())), u"Este campo solo admite números"_s,
                               caja_);
            return Invalid;
        }
        if (nuevo == antes && texto != antes)
            return Invalid; // nothing of it fits: the key or the paste is refused
        if (nuevo != texto) {
            texto = nuevo;
            posicion = int(e.inicio + puesto.size());
        }
        return Acceptable;
    }

private:
    CajaTexto* caja_;
    QRegularExpression numero_;
};

CajaTexto::CajaTexto(QWidget* parent, int maxLength) : QLineEdit(parent), maxLength_(maxLength)
{
    validador_ = new SinControles(this);
    setValidator(validador_);
    // Change only for a text that differs: a refused key leaves the box as it was.
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (text() == anterior_)
            return;
        anterior_ = text();
        Q_EMIT Change();
    });
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
    connect(this, &QPlainTextEdit::textChanged, this, &CajaTextoMultilinea::revisar);
}

// The document's text with its line breaks as '\n', other characters (a
// non-breaking blank) as they are.
QString CajaTextoMultilinea::documento() const
{
    QString t = document()->toRawText();
    t.replace(QChar::ParagraphSeparator, u'\n');
    return t;
}

QString CajaTextoMultilinea::text() const
{
    return editado_ ? documento() : puesto_;
}

void CajaTextoMultilinea::setText(const QString& texto)
{
    puesto_ = texto;
    poniendo_ = true;
    setPlainText(texto);
    poniendo_ = false;
    editado_ = false;
    documento_ = documento();
    avisar();
}

void CajaTextoMultilinea::revisar()
{
    if (poniendo_)
        return;
    const QString ahora = documento();
    if (ahora == documento_)
        return;
    // Typed, pasted or inserted (the document has something to undo): kept to
    // MaxLength characters. Anything else set the whole text, which stays.
    if (document()->isUndoAvailable()) {
        Edicion e = edicion(documento_, ahora);
        const qsizetype largo = e.puesto.size();
        limitar(e, documento_, maxLength_);
        if (e.puesto.size() < largo) {
            QTextCursor cursor(document());
            cursor.setPosition(int(e.inicio + e.puesto.size()));
            cursor.setPosition(int(e.inicio + largo), QTextCursor::KeepAnchor);
            poniendo_ = true;
            cursor.removeSelectedText();
            poniendo_ = false;
        }
    }
    editado_ = true;
    documento_ = documento();
    avisar();
}

void CajaTextoMultilinea::avisar()
{
    const QString texto = text();
    if (texto != anterior_) {
        anterior_ = texto;
        Q_EMIT Change();
    }
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
    QPlainTextEdit::keyPressEvent(evento);
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
