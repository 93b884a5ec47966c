#pragma once
// The standard controls of the dialogs, with the events the dialogs handle:
// Change (any change of the text, also from code), KeyPress (the key as a
// character code that the handler may change or cancel with 0), KeyUp, Click.
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QVariant>
#include <functional>

class QKeyEvent;

namespace nomencla {

class SinControles;

constexpr int vbKeyReturn = 13;
constexpr int vbKeyEscape = 27;
constexpr int vbKeyBack = 8;
constexpr int vbKeyDown = 40;

// The character code of a key press: 13 Enter, 27 Esc, 8 Backspace, 9 Tab,
// the character's code for a printable key, 0 for keys without a character.
int codigoTecla(const QKeyEvent* evento);

// The Spanish locale of every date and number shown.
QLocale localeEcuador();

// A stored value shown in a field. While the field still reads as the pick
// left it, a save writes the value as it was stored (blanks at the ends, a
// figure with more places than shown, a flag other than 0 or 1); once the
// clerk changed the field, what he made of it.
class ValorMostrado {
public:
    void mostrar(const QString& leido, const QVariant& almacenado)
    {
        leido_ = leido;
        almacenado_ = almacenado;
        activo_ = true;
    }
    void olvidar() { activo_ = false; }
    // `ahora`: how the field reads now; `nuevo`: the value of what it reads.
    QVariant valor(const QString& ahora, const QVariant& nuevo) const
    {
        return activo_ && ahora == leido_ ? almacenado_ : nuevo;
    }

private:
    QString leido_;
    QVariant almacenado_;
    bool activo_ = false;
};

// Characters of a text as the database counts them: an emoji is one.
qsizetype caracteres(QStringView texto);

// A one-line text box. MaxLength limits what typing and pasting make of the
// text, in characters; a text set by the program (a stored record) is kept
// whole, and neither the key filters nor the number check touch it.
class CajaTexto : public QLineEdit {
    Q_OBJECT
    Q_PROPERTY(int maxLength READ maxLength WRITE setMaxLength)
public:
    explicit CajaTexto(QWidget* parent = nullptr, int maxLength = 32767);
    QString Text() const { return text(); }
    void setTag(const QString& tag) { tag_ = tag; }
    QString Tag() const { return tag_; }
    int maxLength() const { return maxLength_; }
    void setMaxLength(int n) { maxLength_ = n; }
    // A box for a number: text that isn't one is not taken, pasted or typed
    // (',' is read as the decimal point). Values set by the program are not checked.
    void setSoloNumero(int decimales, bool negativo = false);

Q_SIGNALS:
    void Change();
    void KeyPress(int& KeyAscii);
    void KeyUp(int KeyCode, int Shift);

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void keyReleaseEvent(QKeyEvent* evento) override;

private:
    friend class SinControles;
    QString tag_;
    int maxLength_;
    QString anterior_; // the text before the change being checked
    SinControles* validador_ = nullptr;
};

// A text box of several lines (descriptions), limited to MaxLength characters
// whether typed or pasted; a text set by the program is kept whole, line
// breaks ("\r\n" too) and all, until the clerk edits it. Enter adds no line:
// it is a key like in a one-line box.
class CajaTextoMultilinea : public QPlainTextEdit {
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY Change)
    Q_PROPERTY(int maxLength READ maxLength WRITE setMaxLength)
public:
    explicit CajaTextoMultilinea(QWidget* parent = nullptr, int maxLength = 32767);
    QString text() const;
    void setText(const QString& texto);
    int maxLength() const { return maxLength_; }
    void setMaxLength(int n) { maxLength_ = n; }

Q_SIGNALS:
    void Change();
    void KeyPress(int& KeyAscii);

protected:
    void keyPressEvent(QKeyEvent* evento) override;

private:
    int maxLength_;
    QString puesto_;        // the text the program set, as it was given
    bool editado_ = false;  // the document changed since: it is the text
    bool poniendo_ = false;
    QString documento_;     // the document's text after the last change
    QString anterior_;      // text() after the last change
    QString documento() const;
    void revisar(); // after each change of the document
    void avisar();  // Change, when text() changed
};

class Etiqueta : public QLabel {
    Q_OBJECT
public:
    explicit Etiqueta(const QString& texto, QWidget* parent = nullptr);
    // As QLabel's, and tells it (the mode banner is announced).
    void setText(const QString& texto);
    // 0xRRGGBB, or 0x8000000F for the system's button face.
    void setBackColor(quint32 color);
    quint32 BackColor() const { return color_; }

Q_SIGNALS:
    void TextoCambiado();

private:
    quint32 color_ = 0x8000000F;
};

constexpr quint32 colorNuevo = 0x80FF80;
constexpr quint32 colorCaraBoton = 0x8000000F;

// Drop-down list without free text; a number per entry (item data).
class Combo : public QComboBox {
    Q_OBJECT
public:
    explicit Combo(QWidget* parent = nullptr);
    QString Text() const { return currentIndex() < 0 ? QString() : currentText(); }
    // Selects the entry with that text; false (and nothing selected) when none has it.
    bool setText(const QString& texto);
    int ListIndex() const { return currentIndex(); }
    void setListIndex(int i) { setCurrentIndex(i); }
    int ListCount() const { return count(); }
    qint64 ItemData(int i) const { return itemData(i).toLongLong(); }
};

class Casilla : public QCheckBox {
    Q_OBJECT
public:
    explicit Casilla(const QString& texto, QWidget* parent = nullptr);
    int Value() const { return isChecked() ? 1 : 0; }
    void setValue(int v) { setChecked(v != 0); }

Q_SIGNALS:
    void Click(); // the value changed, by the user or by code
};

// Date picker in Spanish (es_EC), with a calendar.
class SelectorFecha : public QDateEdit {
    Q_OBJECT
public:
    explicit SelectorFecha(const QString& formato, QWidget* parent = nullptr);
    QDate Value() const { return date(); }
    void setValue(const QDate& fecha) { setDate(fecha); }

Q_SIGNALS:
    void Change();
    void CallbackKeyDown();
    void KeyPress(int& KeyAscii);

protected:
    void keyPressEvent(QKeyEvent* evento) override;
};

// Picks a file to open; an empty text when the user cancels. Tests replace
// the chooser with one of their own.
using ElectorArchivo = std::function<QString(QWidget* padre, const QString& titulo, const QString& filtro)>;
QString elegirArchivo(QWidget* padre, const QString& titulo, const QString& filtro);
void setElectorArchivo(ElectorArchivo elector); // empty: the standard file dialog again

} // namespace nomencla
