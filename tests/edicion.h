#pragma once
// The dialogs that save what the clerk types, with their boxes: the
// hostile-text test pastes into each text box, the round-trip test (the
// dialogs with an edit mode) changes each field of a stored record.
#include "tests/prueba_estructura.h"

#include <QComboBox>
#include <QLineEdit>

namespace prueba {

using namespace Qt::StringLiterals;

enum class Tipo { Texto, Cifra, Otro };

struct Campo {
    QString nombre;
    QString columna;
    int largo;     // of a text box
    QString nuevo = {}; // a changed value: a box's text; "+" the next entry of a combo; "!" a click on a check box
    Tipo tipo = Tipo::Texto;
    bool varias = false;
    int minimo = -1; // shorter is refused; -1: the dialog's
};

using Pasos = std::function<void(QWidget*)>;

struct Dialogo {
    QString forma;
    std::function<bool(clsNomencla&, const QString&, QSqlDatabase&)> abrir;
    QString tabla, clave;
    QString listo;  // the message of a save
    int minimo;     // shorter (trimmed) is refused
    QString corto;  // with this message ("": silently)
    QList<Campo> cajas; // the text boxes first
    int columnaClave = -1; // the grid's cell with cod; -1: no edit mode
    QString previas = {}; // rows needed before; a row of each tenant is added
    Pasos preparar = {};  // before each save, after the boxes
    Pasos guardar = [](QWidget* d) { pulsar(d, u"Bt(0)"_s); };
};

inline const QList<Dialogo>& dialogos()
{
    using N = clsNomencla;
    const QString bien = u"La información se ha guardado correctamente!"_s;
    const QString incompleta = u"Debe ingresar toda la información antes de guardar!"_s;
    const QString nombre = u"Debe especificar el nombre "_s;
    const auto codificada = [](const QString& columna, int largo, int largoDes, bool varias) {
        return QList<Campo>{{u"Tx(0)"_s, columna, largo, u"Nuevo nombre"_s},
                           {u"Tx(1)"_s, u"des"_s, largoDes, u"Otra descripción"_s, Tipo::Texto, varias}};
    };
    static const QList<Dialogo> lista{
        {u"frmLsCiudad"_s, &N::Ciudades, u"lsCiudades"_s, u"pk"_s, bien, 1, nombre + u"de la ciudad!"_s,
         {{u"Text1"_s, u"ciu"_s, 25}}},
        {u"frmLsDepartam"_s, &N::Departamentos, u"lsDepartam"_s, u"pk"_s, bien, 1, nombre + u"del departamento!"_s,
         {{u"Text1"_s, u"depa"_s, 25}}},
        {u"frmLsContenido"_s, &N::Contenidos, u"lsContenidos"_s, u"cod"_s, bien, 1, nombre + u"del objeto!"_s,
         {{u"Text1"_s, u"nom"_s, 25}}},
        {u"frmMedidas"_s, &N::Medidas, u"aMedidas"_s, u"pk"_s, bien, 1,
         u"Debe especificar el nombre y la abreviación de la medida/presentacion!"_s,
         {{u"Text1"_s, u"med"_s, 20}, {u"Text2"_s, u"abr"_s, 10}}},
        {u"frmLsCategorias"_s, &N::CategoriaClientes, u"mCatClie"_s, u"pk"_s, guardada, 2,
         nombre + u"de la categoría!"_s, codificada(u"cat"_s, 50, 150, true), 2},
        {u"frmLsDocAutSRI"_s, &N::DocumentAutorizSRI, u"SRI_Documentos"_s, u"cod"_s, guardada, 2,
         nombre + u"del documento autorizado por el SRI!"_s, codificada(u"cin"_s, 3, 30, false), 2},
        {u"frmLsSustentos"_s, &N::SustentoTributario, u"SRI_Sustentos"_s, u"cod"_s, guardada, 2,
         nombre + u"del sustento tributario autorizado por el SRI!"_s, codificada(u"cin"_s, 3, 150, false), 2},
        {u"frmLsCargos"_s, &N::Cargos, u"Cargos"_s, u"cod"_s, guardada, 2, nombre + u"del cargo!"_s,
         codificada(u"car"_s, 50, 150, true), 2},
        {u"frmLsTipoCli"_s, &N::TipoClientes, u"mTipClie"_s, u"pk"_s, guardada, 2, nombre + u"del tipo de cliente!"_s,
         codificada(u"tip"_s, 50, 150, true) + QList<Campo>{{u"Tx(2)"_s, u"cre"_s, 0, u"7"_s, Tipo::Cifra},
                                                           {u"Tx(3)"_s, u"pla"_s, 0, u"8"_s, Tipo::Cifra},
                                                           {u"Tx(4)"_s, u"descu"_s, 0, u"9.5"_s, Tipo::Cifra}},
         5},
        {u"frmLsZona"_s, &N::ZonaClientes, u"mZonaClie"_s, u"pk"_s, guardada, 2, nombre + u"de la zona!"_s,
         codificada(u"zon"_s, 50, 150, true), 2},
        {u"frmLsContratos"_s, &N::Contratos, u"lscontratos"_s, u"cod"_s, guardada, 2, {},
         {{u"Text1"_s, u"con"_s, 60, u"Nuevo contrato"_s}}, 1},
        {u"frmLsCuentas"_s, &N::Cuentas, u"lsCuentas"_s, u"cod"_s, guardada, 2, {},
         {{u"Text1"_s, u"cta"_s, 60, u"Nueva cuenta"_s}}, 1},
        {u"frmLsPaises"_s, &N::Paises, u"lsPaises"_s, u"cod"_s, guardada, 6, {},
         {{u"Text1"_s, u"nom"_s, 60, u"Nuevo país"_s}}, 1},
        {u"frmLsBancos"_s, &N::Bancos, u"lsBancos"_s, u"cod"_s, guardada, 6, {},
         {{u"Text1"_s, u"nom"_s, 60, u"Nuevo banco"_s},
          {u"Check1"_s, u"tar"_s, 0, u"!"_s, Tipo::Otro},
          {u"Nm(0)"_s, u"cor"_s, 0, u"1.5"_s, Tipo::Cifra},
          {u"Nm(1)"_s, u"dife"_s, 0, u"2.5"_s, Tipo::Cifra}},
         2},
        {u"frmEmpresas"_s, &N::Empresas, u"empresas"_s, u"cod"_s, guardada, 1, incompleta,
         {{u"Tx(0)"_s, u"emp"_s, 120, u"Nueva empresa"_s},
          {u"Tx(2)"_s, u"dir"_s, 120, u"Nueva dirección"_s},
          {u"Tx(3)"_s, u"tel"_s, 12, u"022"_s},
          {u"Tx(4)"_s, u"ciu"_s, 25, u"Loja"_s},
          {u"Tx(5)"_s, u"prov"_s, 50, u"Loja"_s},
          {u"Tx(6)"_s, u"nart"_s, 25, u"N-2"_s, Tipo::Texto, false, 0},
          {u"Combo4"_s, u"act"_s, 0, u"+"_s, Tipo::Otro},
          {u"Check1(0)"_s, u"selec"_s, 0, u"!"_s, Tipo::Otro},
          {u"Check1(1)"_s, u"art"_s, 0, u"!"_s, Tipo::Otro}},
         6},
        {u"frmSucursales"_s, &N::Sucursales, u"Sucursales"_s, u"cod"_s, guardada, 1, incompleta,
         {{u"Tx(0)"_s, u"ciu"_s, 25, u"Loja"_s},
          {u"Tx(1)"_s, u"nom"_s, 60, u"Nueva sucursal"_s},
          {u"Tx(2)"_s, u"dir"_s, 100, u"Nueva dirección"_s},
          {u"Tx(3)"_s, u"tel"_s, 10, u"07"_s, Tipo::Texto, false, 0},
          {u"Cmb"_s, u"emp"_s, 0, u"+"_s, Tipo::Otro}},
         5, u"INSERT INTO empresas (id,emp) VALUES ('1','Andina')"_s,
         [](QWidget* d) { control<QComboBox>(d, u"Cmb"_s)->setCurrentIndex(0); }},
        {u"frmSubProveedor"_s, [](N& n, const QString& id, QSqlDatabase& db) { return n.SubProveedores(id, 7, db); },
         u"SubProveedor"_s, u"cod"_s, guardada, 1, incompleta,
         {{u"Tx(0)"_s, u"cin"_s, 13, u"SP-9"_s},
          {u"Tx(1)"_s, u"ruc"_s, 13, u"0999999999001"_s},
          {u"Tx(2)"_s, u"raz"_s, 100, u"Nueva razón"_s},
          {u"Tx(3)"_s, u"dir"_s, 100, u"Nueva dirección"_s, Tipo::Texto, false, 0}},
         4, u"INSERT INTO mProveedor (cod,nom,ced) VALUES (7,'Distribuidora','1790000000001')"_s},
        // A place of a stored zone, written at Enter in its ordinal.
        {u"frmLsZona"_s, &N::ZonaClientes, u"mZonaLugar"_s, u"cod"_s,
         u"El lugar asociado a la zona se ha registrado en la base de datos!"_s, 2,
         u"Debe especificar el nombre del lugar!"_s, {{u"Tx(2)"_s, u"lug"_s, 50}}, -1,
         u"INSERT INTO mZonaClie (id,cod,zon) VALUES ('1',1,'Norte'),('2',1,'Norte')"_s,
         [](QWidget* d) {
             auto* gr = control<nomencla::Alfarje>(d, u"GR"_s);
             if (gr->Row() < 0)
                 dobleClic(gr, 0);
         },
         [](QWidget* d) { tecla(control<QLineEdit>(d, u"Tx(3)"_s), Qt::Key_Return); }},
    };
    return lista;
}

} // namespace prueba
