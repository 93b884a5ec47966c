#pragma once
// The companies of the tenant: trade name, activity, flags, head office,
// the number of branches (kept, not shown) and the logo. Renaming a company
// renames it in its branches, which point at it by name.
#include "company/EstructuraEmpresa.h"

#include <QImage>
#include <QLabel>

namespace nomencla {

class Casilla;
class Combo;

// The logo box: shows a picture scaled into it; a click, or Space/Enter
// while it has the focus, asks for a file.
class CuadroImagen : public QLabel {
    Q_OBJECT
public:
    explicit CuadroImagen(QWidget* parent = nullptr);
    // Shows the picture scaled into the box; a null one empties it.
    void mostrar(const QImage& imagen);
    bool vacio() const;

Q_SIGNALS:
    void Click();

protected:
    void mouseReleaseEvent(QMouseEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
};

class frmEmpresas : public EstructuraEmpresa {
    Q_OBJECT
public:
    frmEmpresas();
    // The logo's choice, as a click on the box.
    void P1_Click();

protected:
    void Disenar(QWidget* lienzo) override;
    void Form_Load() override;
    bool Validar() override;
    bool Escribir() override;
    void trasEscribir() override;
    bool PuedeQuitar() override;
    bool CargarLista() override;
    void limpiarCampos() override;
    void MostrarRegistro() override;

private:
    Combo* Combo4 = nullptr;
    Casilla* Check1[2] = {nullptr, nullptr};
    CuadroImagen* P1 = nullptr;
    QString NombreAnterior;
    QString RutaLogo;
    bool LogoElegido = false;
    bool logoFallido_ = false;
    // Activity and the two flags as the picked row stored them (an activity
    // outside the list, a flag of 2): kept while the clerk leaves them.
    ValorMostrado actividad_, servicios_, artesano_;
    QString T(int indice) const;
};

} // namespace nomencla
