#pragma once
// The branches of the tenant. A branch belongs to a company by the company's
// name, chosen among the active companies.
#include "company/EstructuraEmpresa.h"

namespace nomencla {

class Combo;

class frmSucursales : public EstructuraEmpresa {
    Q_OBJECT
public:
    frmSucursales();

protected:
    void Disenar(QWidget* lienzo) override;
    void Form_Load() override;
    bool Validar() override;
    bool Escribir() override;
    void MostrarRegistro() override;

private:
    Combo* Cmb = nullptr;
    ValorMostrado empresa_; // the picked branch's company, as stored
    // The company the save writes: the stored one while Cmb stays as the pick left it.
    QString empresa() const;
};

} // namespace nomencla
