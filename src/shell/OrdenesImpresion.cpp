#include "shell/OrdenesImpresion.h"

#include <array>

namespace novex {
namespace {

using enum PanelImpresion;

constexpr std::array<OrdenImpresion, 5> kOrdenes = {
    {{"BB_Imprimir", PExistente, "Certificado", TipoDocumento::Certi, "EXISTENTES"},
     {"Panel6", Pnuevo1, "Fase proyecto", TipoDocumento::Certi, "NUEVOS. PROYECTO"},
     {"Panel7", Pnuevo1, "Fase edificio terminado", TipoDocumento::Certi, "NUEVOS. TERMINADO"},
     {"BBHE1Simpli", PHE1, "NUEVO", TipoDocumento::HE, "NUEVO"},
     {"Panel2", PHE1, "EXISTENTE", TipoDocumento::HE, "EXISTENTE"}}};

}  // namespace

std::string_view NombrePanel(PanelImpresion panel) {
  switch (panel) {
    case PHE1:
      return "PHE1";
    case Pnuevo1:
      return "Pnuevo1";
    case PExistente:
      break;
  }
  return "PExistente";
}

std::span<const OrdenImpresion> OrdenesImpresion() {
  return kOrdenes;
}

PanelImpresion PanelDeImpresion(bool desdeVerificacion, const DatosGenerales& generales) {
  if (desdeVerificacion) return PHE1;
  return generales.Modo_trabajo == "Nuevo" ? Pnuevo1 : PExistente;
}

void PonerExistente(Edificio& edificio, bool existente) {
  DatosGenerales generales = edificio.GetDatosGenerales();
  generales.Modo_trabajo = existente ? "Existente" : "Nuevo";
  edificio.SetDatosGenerales(std::move(generales));
}

bool HayQueGuardarAntes(const SesionProyecto& sesion) {
  return !sesion.TieneFichero() || sesion.Fichero().extension() == ".txt";
}

}  // namespace novex
