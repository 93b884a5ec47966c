#pragma once
// The sub-suppliers of the tenant, opened for one supplier: its name and tax
// number head the dialog, and a new sub-supplier is stored under it. The
// list shows every sub-supplier of the tenant.
#include "company/EstructuraEmpresa.h"

class QLabel;

namespace nomencla {

class frmSubProveedor : public EstructuraEmpresa {
    Q_OBJECT
public:
    frmSubProveedor();

protected:
    void Disenar(QWidget* lienzo) override;
    void Form_Load() override;
    bool Validar() override;
    bool Escribir() override;
    void MostrarRegistro() override;

private:
    Etiqueta* Lbl[2] = {nullptr, nullptr};
    QLabel* LblRuc = nullptr;
    bool LeerProveedor();
};

} // namespace nomencla
