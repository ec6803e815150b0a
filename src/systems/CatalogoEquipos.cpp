#include "systems/CatalogoEquipos.h"

#include <utility>

#include "model/CatalogoCampos.h"

namespace novex {
namespace {

constexpr std::pair<std::string_view, TipoCatalogo> kTipos[] = {
    {"1 Calentador", {"Generadores", "Generadores"}},
    {"1 Caldera", {"Generadores", "Generadores"}},
    {"1 Caldera Mixta", {"Generadores", "Generadores"}},
    {"1 BC aire-agua", {"EquipoAW", "BC_aire_agua"}},
    {"1 BC aire-agua + 1 Caldera", {"EquipoAW", "BC_aire_agua"}},
    {"Enfriadora agua cond.aire", {"EquipoAW", "Enfriadora_agua_cond_aire"}},
    {"Equipo de Ventana", {"EquipoAA", "Equipo_de_Ventana"}},
    {"Equipo Split", {"EquipoAA", "Equipo_Split"}},
    {"Equipo Conductos", {"EquipoAA", "Equipo_Conductos"}},
    {"Equipo MultiSplit", {"EquipoAA", "Equipo_MultiSplit"}},
    {"Caudal refrigerante variable", {"EquipoAA", "Caudal_refrigerante_variable"}},
    {"Rooftop", {"EquipoAA", "Rooftop"}}};

constexpr std::string_view kVariable = "Caudal_refrigerante_variable";

std::string_view Nombre(const XMLNode& nodo) {
  return nodo.attributeValue("name").value_or("");
}

XMLNode HijoConNombre(const XMLNode& nodo, std::string_view nombre) {
  for (std::size_t i = 0; i < nodo.childCount(); ++i) {
    const XMLNode hijo = nodo.childAt(i);
    if (Nombre(hijo) == nombre) return hijo;
  }
  return {};
}

float Numero(const XMLNode& nodo, const std::string& atributo, Mensajes& mensajes) {
  return ValorSinComprobar(nodo.attributeValue(atributo).value_or(""), mensajes);
}

// Coeficientes `prefijo0`, `prefijo1`.. de un grupo.
template <std::size_t N>
void LeerGrupo(const XMLNode& modelo, const char* grupo, const char* prefijo,
               std::array<float, N>& coeficientes, Mensajes& mensajes) {
  const XMLNode nodo = modelo.childNamed(grupo);
  for (std::size_t k = 0; k < N; ++k)
    coeficientes[k] = Numero(nodo, prefijo + std::to_string(k), mensajes);
}

ModeloEquipo LeerModelo(const XMLNode& nodo, Mensajes& mensajes) {
  ModeloEquipo m;
  m.modelo = nodo.attributeValue("modelo").value_or("");
  m.PotTotRef = Numero(nodo, "PotTotRef", mensajes);
  m.PotSenRef = Numero(nodo, "PotSenRef", mensajes);
  m.ConRef = Numero(nodo, "ConRef", mensajes);
  m.PotCal = Numero(nodo, "PotCal", mensajes);
  m.ConCal = Numero(nodo, "ConCal", mensajes);
  CurvasEquipo& c = m.curvas;
  LeerGrupo(nodo, "CapCal_T", "Qaa", c.aaQ, mensajes);
  LeerGrupo(nodo, "CapCal_T", "Qab", c.abQ, mensajes);
  LeerGrupo(nodo, "ConCal_T", "Qba", c.baQ, mensajes);
  LeerGrupo(nodo, "ConCal_T", "Qbb", c.bbQ, mensajes);
  LeerGrupo(nodo, "ConCal_F", "Qc", c.cQ, mensajes);
  LeerGrupo(nodo, "CapTotRef_T", "Ra", c.aR, mensajes);
  LeerGrupo(nodo, "CapSenRef_T", "Re", c.eR, mensajes);
  LeerGrupo(nodo, "ConRef_T", "Rb", c.bR, mensajes);
  LeerGrupo(nodo, "ConRef_F", "Rc", c.cR, mensajes);
  LeerGrupo(nodo, "ren_F", "Cc", c.cC, mensajes);
  LeerGrupo(nodo, "ren_T", "Cg", c.gC, mensajes);
  c.TeCambio = Numero(nodo.childNamed("CapCal_T"), "Tecamb", mensajes);
  return m;
}

}  // namespace

TipoCatalogo TipoDeCatalogo(std::string_view seleccion) {
  for (const auto& [nombre, tipo] : kTipos)
    if (nombre == seleccion) return tipo;
  return {};
}

XMLNode CatalogoEquipos::NodoTipo(std::string_view fabricante, std::string_view familia,
                                  std::string_view tipo) const {
  return HijoConNombre(HijoConNombre(HijoConNombre(raiz_, fabricante), familia), tipo);
}

std::vector<std::string> CatalogoEquipos::Fabricantes(std::string_view familia,
                                                      std::string_view tipo) const {
  std::vector<std::string> salida;
  for (std::size_t i = 0; i < raiz_.childCount(); ++i) {
    const XMLNode fabricante = raiz_.childAt(i);
    if (!HijoConNombre(HijoConNombre(fabricante, familia), tipo).isEmpty())
      salida.emplace_back(Nombre(fabricante));
  }
  return salida;
}

std::vector<ModeloEquipo> CatalogoEquipos::Modelos(std::string_view fabricante,
                                                   std::string_view familia,
                                                   std::string_view tipo) const {
  std::vector<ModeloEquipo> salida;
  const XMLNode nodo = NodoTipo(fabricante, familia, tipo);
  for (std::size_t i = 0; i < nodo.childCount(); ++i)
    salida.push_back(LeerModelo(nodo.childAt(i), mensajes_));
  return salida;
}

bool CatalogoEquipos::Aplicar(std::string_view fabricante, std::string_view familia,
                              std::string_view tipo, std::size_t fila,
                              Instalaciones& bloque) const {
  const XMLNode nodo = NodoTipo(fabricante, familia, tipo);
  if (fila == 0 || fila > nodo.childCount()) return false;
  const ModeloEquipo m = LeerModelo(nodo.childAt(fila - 1), mensajes_);
  bloque.curvas = m.curvas;
  bloque.Fabricante = fabricante;
  bloque.Modelo = m.modelo;
  if (fabricante == kFabricanteDefecto || familia == "Generadores") return true;
  bloque.QFrioTot1 = m.PotTotRef;
  if (familia == "EquipoAA" && tipo != kVariable) bloque.QFrioSen1 = m.PotSenRef;
  bloque.WeFrio1 = m.ConRef;
  bloque.QcalorBC1 = m.PotCal;
  bloque.WeCalor1 = m.ConCal;
  return true;
}

void CatalogoEquipos::PonerCurvasGenericas(Edificio& edificio) const {
  for (std::size_t s = 0; s < edificio.NumeroSistemas(); ++s)
    for (Instalaciones& bloque : edificio.GetSistema(s).instalaciones) {
      if (bloque.Fabricante != kFabricanteDefecto) continue;
      const TipoCatalogo t = TipoDeCatalogo(bloque.Seleccion);
      const XMLNode nodo = NodoTipo(kFabricanteDefecto, t.familia, t.tipo);
      for (std::size_t i = 0; i < nodo.childCount(); ++i)
        if (nodo.childAt(i).attributeValue("modelo") == bloque.Modelo)
          bloque.curvas = LeerModelo(nodo.childAt(i), mensajes_).curvas;
    }
}

}  // namespace novex
