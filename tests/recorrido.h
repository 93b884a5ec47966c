#pragma once
// The walk through every maintenance dialog of the plan test: each dialog
// saves a new record of tenant '1' of the demo data, renames one and removes
// another.
#include "tests/prueba_estructura.h"

#include <nomencla/clsNomencla.h>

#include <QAbstractButton>
#include <QDateEdit>

namespace prueba {

using namespace Qt::StringLiterals;

inline int operaciones = 0;

// Records of tenant '1' nothing refers to, added to the demo data so that
// the walk may remove them.
inline const char* const sinReferencias =
    "INSERT INTO mCatClie (id,cod,cat,des,est) VALUES ('1',7,'Eventual','Sin compras frecuentes',1);\n"
    "INSERT INTO mTipClie (id,cod,tip,des,est) VALUES ('1',6,'Ocasional','Sin crédito',1);\n"
    "INSERT INTO mZonaClie (id,cod,zon,des,est) VALUES ('1',7,'Temporal','Ferias y eventos',1);\n"
    "INSERT INTO empresas (id,emp,dir,tel,ciu,prov,est) VALUES "
    "('1','Inversiones del Valle','Av. Ilaló','022860000','Sangolquí','Pichincha',1)";

// A dialog's steps, separated by "; ". "Tx(0)=text" fills a box (a date box
// with "MM-dd" of this year). "GR=text" double-clicks the row of a grid with
// the text in column 0 ("GR/1=text": in column 1). "Bt(0)" presses a button
// and expects a new box telling the save; "-Bt(1)" confirms a removal and
// expects it done; "?Bt(1)" presses it and takes whatever comes (a question
// is answered No).
inline void seguir(QWidget* d, Cajas& c, const char* pasos)
{
    for (const QString& paso : QString::fromUtf8(pasos).split(u"; "_s)) {
        const bool quitar = paso.startsWith(u'-') || paso.startsWith(u'?');
        const bool cualquiera = paso.startsWith(u'?');
        const QString nombre = paso.section(u'=', 0, 0).mid(quitar ? 1 : 0);
        const QString texto = paso.section(u'=', 1);
        auto* w = control<QWidget>(d, nombre.section(u'/', 0, 0));
        QVERIFY(w);
        if (auto* gr = qobject_cast<nomencla::Alfarje*>(w)) {
            d->activateWindow(); // the places follow a row only with the focus
            QVERIFY(QTest::qWaitForWindowActive(d));
            dobleClic(gr, filaCon(gr, texto, nombre.section(u'/', 1).toInt()));
        } else if (qobject_cast<QAbstractButton*>(w)) {
            if (quitar && !cualquiera)
                c.responder(QMessageBox::Yes);
            const qsizetype vistas = c.vistas.size();
            pulsar(d, nombre);
            const QString caja = c.vistas.size() > vistas ? c.ultima() : QString();
            // The named lists say nothing after the question.
            QVERIFY2(cualquiera
                         || (quitar ? caja == u"La operación se realizó correctamente!"_s || caja.startsWith(u"Está seguro"_s)
                                    : caja.startsWith(u"La información se ha guardado"_s)),
                     qPrintable(paso + u": "_s + caja));
            ++operaciones;
        } else if (auto* fecha = qobject_cast<QDateEdit*>(w)) {
            fecha->setDate(QDate::fromString(u"%1-"_s.arg(QDate::currentDate().year()) + texto, Qt::ISODate));
        } else {
            w->setProperty("text", texto);
        }
        if (QTest::currentTestFailed())
            return;
    }
}

using N = clsNomencla;

// Each dialog saves a new record, renames one and removes another (the
// simple lists have no rename: the name typed is the one removed).
struct Caso {
    const char* forma;
    const char* tablas; // where tenant '1' must show the change
    std::function<bool(N&, const QString&, QSqlDatabase&)> abrir;
    const char* pasos;
};

inline const QList<Caso> casos{
    {"frmLsCiudad", "lsciudades", &N::Ciudades, "Text1=Pasaje; Bt(0); Text1=Tena; -Bt(2)"},
    {"frmLsDepartam", "lsdepartam", &N::Departamentos, "Text1=Auditoría; Bt(0); Text1=Sistemas; -Bt(2)"},
    {"frmLsContenido", "lscontenidos", &N::Contenidos, "Text1=Funda; Bt(0); Text1=Manual de usuario; -Bt(2)"},
    {"frmMedidas", "amedidas", &N::Medidas, "Text1=Barril; Text2=bar; Bt(0); Text1=Docena; -Bt(2)"},
    {"frmLsCategorias", "mcatclie", &N::CategoriaClientes,
     "Tx(0)=Supermercados; Bt(0); GR=Minorista; Tx(0)=Minorista de barrio; Bt(0); GR=Eventual; -Bt(1)"},
    {"frmLsCargos", "cargos", &N::Cargos,
     "Tx(0)=Supervisor; Bt(0); GR=Chofer; Tx(0)=Chofer repartidor; Bt(0); GR=Cajero; -Bt(1)"},
    {"frmLsDocAutSRI", "sri_documentos", &N::DocumentAutorizSRI,
     "Tx(0)=18; Bt(0); GR=08; Tx(1)=Boletos para eventos; Bt(0); GR=09; -Bt(1)"},
    {"frmLsSustentos", "sri_sustentos", &N::SustentoTributario,
     "Tx(0)=14; Bt(0); GR=05; Tx(1)=Liquidación de viajes; Bt(0); GR=09; -Bt(1)"},
    {"frmLsTipoCli", "mtipclie", &N::TipoClientes,
     "Tx(0)=Mayorista; Bt(0); GR=Preferencial; Tx(0)=Preferencial oro; Bt(0); GR=Ocasional; -Bt(1)"},
    // A place renamed (Bt(5)): this tenant's customers of the zone follow it.
    {"frmLsZona", "mzonaclie mzonalugar mcliente", &N::ZonaClientes,
     "Tx(0)=Galápagos; Bt(0); GR=Valles; Tx(0)=Valles orientales; Bt(0); GR=Quito Norte; GR2=Carcelén; "
     "Tx(2)=Carcelén Bajo; Bt(5); GR2=El Condado; -Bt(4); GR=Temporal; -Bt(1)"},
    {"frmLsContratos", "lscontratos", &N::Contratos,
     "Text1=CT-2025-020 Limpieza de oficinas; Bt(0); GR=CT-2025-011 Servicio de seguridad; "
     "Text1=CT-2025-011 Servicio de seguridad y monitoreo; Bt(0); GR=CT-2024-001 Mantenimiento de equipos; -Bt(1)"},
    {"frmLsCuentas", "lscuentas", &N::Cuentas,
     "Text1=1.1.01.03 Fondo rotativo; Bt(0); GR=1.1.01.02 Caja chica; Text1=1.1.01.02 Caja chica matriz; Bt(0); "
     "GR=5.2.01.05 Gastos de movilización; -Bt(1)"},
    {"frmLsPaises", "lspaises", &N::Paises,
     "Text1=Uruguay; Bt(0); GR=Alemania; Text1=Alemania Federal; Bt(0); GR=Chile; -Bt(1)"},
    {"frmLsBancos", "lsbancos", &N::Bancos,
     "Text1=Banco Capital; Bt(0); GR=Banco del Austro; Text1=Banco Austro; Bt(0); GR=Cooperativa JEP; -Bt(1)"},
    // The rename reaches this tenant's branches of the company.
    {"frmEmpresas", "empresas sucursales", &N::Empresas,
     "Tx(0)=Nueva Empresa Uno; Tx(2)=Av. Central 1; Tx(3)=022222222; Tx(4)=Quito; Tx(5)=Pichincha; Bt(0); "
     "GR=Farmacia Santa Lucía; Tx(0)=Farmacia Santa Lucía Cía. Ltda.; Bt(0); GR=Inversiones del Valle; -Bt(1)"},
    {"frmSucursales", "sucursales", &N::Sucursales,
     "Tx(0)=Quito; Tx(1)=Sucursal Norte; Tx(2)=Av. de la Prensa N50; Tx(3)=022999888; Bt(0); "
     "GR/1=Sucursal Cuenca; Tx(1)=Sucursal Cuenca Centro; Bt(0); GR/1=El Ejido; -Bt(1)"},
    // IT-100 is in review: the status that may be removed.
    {"frmSubProveedor", "subproveedor", [](N& n, auto& id, auto& db) { return n.SubProveedores(id, 1, db); },
     "Tx(0)=SP-004; Tx(1)=0990011223001; Tx(2)=Farmacéutica Nueva; Tx(3)=Av. Olmedo 100, Guayaquil; Bt(0); "
     "GR=SP-002; Tx(2)=María Fernanda Zambrano de Vera; Bt(0); GR=IT-100; -Bt(1)"},
    // The second date picks the demo's row that is removed.
    {"frmListaFechasIVA", "fechaivadif",
     [](N& n, auto& id, auto& db) {
         n.ListaFechasIVA(id, db);
         return true;
     },
     "DT=06-15; Bt(0); DT=10-09; -Bt(2)"},
};

} // namespace prueba
