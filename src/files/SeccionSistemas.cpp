#include <algorithm>
#include <span>

#include "base/Texto.h"
#include "files/LimitesProyecto.h"
#include "files/NodoConservadoXml.h"
#include "files/SeccionesProyecto.h"

namespace novex {
namespace {

using X = DatosDerivados::Caso;
using S = SistemaResidencial;
using I = Instalaciones;
using B = BombaCircuito;
using C = CurvasEquipo;

constexpr std::string_view kSistema = "Tipo_sistema";
constexpr int kDecimalesCurva = 8;

constexpr std::array kCamposSistema = {
    Texto<&S::Tipo_sistema>(kSistema), Texto<&S::Nombre_sistema>("Nombre_sistema"),
    Real<&S::Sup_ACS>("Sup_ACS", 2), Real<&S::Sup_Calefaccion>("Sup_Calefaccion", 2),
    Real<&S::Sup_Refrigeracion>("Sup_Refrigeracion", 2)};

constexpr std::array kCamposGenerador = {
    Texto<&I::Seleccion>("Seleccion"),
    Texto<&I::TipoInstalacionesG>("TipoInstalacionesG"),
    Texto<&I::TipoGenerador1>("TipoGenerador1"),
    Texto<&I::TipoBC1>("TipoBC1"),
    Texto<&I::TipoGenerador2>("TipoGenerador2"),
    Texto<&I::TipoBC12>("TipoBC12"),
    Texto<&I::Distribucion>("Distribucion"),
    Texto<&I::Distribucion2>("Distribucion2"),
    Texto<&I::Retorno>("Retorno"),
    Texto<&I::Alimentacion>("Alimentacion"),
    Texto<&I::Alimentacion2>("Alimentacion2"),
    Texto<&I::Alimentacion3>("Alimentacion3"),
    Texto<&I::Alimentacion4>("Alimentacion4"),
    Real<&I::EControlTe>("EControlTe", 1),
    Entero<&I::NEmisores>("NEmisores"),
    Texto<&I::Emisor>("Emisor"),
    Texto<&I::ConsumoEmisor>("ConsumoEmisor"),
    Entero<&I::NEquipos>("NEquipos"),
    Real<&I::Long_tuberias>("Long_tuberias", 2),
    Real<&I::Pot_perdida_m_tub>("Pot_perdida_m_tub", 2),
    Entero<&I::NHretorno>("NHretorno"),
    Real<&I::Distanciaext_int>("Distanciaext_int", 2),
    Real<&I::Perdida_m_tub_ext_int>("Perdida_m_tub_ext_int", 2),
    Real<&I::Volumen>("Volumen", 2),
    Real<&I::UA_deposito>("UA_deposito", 2),
    Real<&I::LD_deposito>("LD_deposito", 1),
    Real<&I::TaltaD>("TaltaD", 2),
    Real<&I::TbajaD>("TbajaD", 2),
    Real<&I::AintermbD>("AintermbD", 2),
    Real<&I::AintermbD2>("AintermbD2", 2),
    Real<&I::EfiIntercamb>("EfiIntercamb", 2),
    Real<&I::SBZ, &B::Caudal>("CaudalSBZ", 2),
    Real<&I::SBZ, &B::DT>("DTSBZ", 1),
    Real<&I::SBZ, &B::P>("PSBZ", 2),
    Real<&I::SBZ, &B::Rend>("RendSBZ", 2),
    Texto<&I::SBZ, &B::control>("controlSBZ"),
    Real<&I::GEN1, &B::Caudal>("CaudalGEN1", 2),
    Real<&I::GEN1, &B::DT>("DTGEN1", 1),
    Real<&I::GEN1, &B::P>("PGEN1", 2),
    Real<&I::GEN1, &B::Rend>("RendGEN1", 2),
    Texto<&I::GEN1, &B::control>("controlGEN1"),
    Real<&I::GEN2, &B::Caudal>("CaudalGEN2", 2),
    Real<&I::GEN2, &B::DT>("DTGEN2", 1),
    Real<&I::GEN2, &B::P>("PGEN2", 2),
    Real<&I::GEN2, &B::Rend>("RendGEN2", 2),
    Texto<&I::GEN2, &B::control>("controlGEN2"),
    Real<&I::DEP, &B::Caudal>("CaudalDEP", 2),
    Real<&I::DEP, &B::DT>("DTDEP", 1),
    Real<&I::DEP, &B::P>("PDEP", 2),
    Real<&I::DEP, &B::Rend>("RendDEP", 2),
    Texto<&I::DEP, &B::control>("controlDEP"),
    Real<&I::INT, &B::Caudal>("CaudalINT", 2),
    Real<&I::INT, &B::DT>("DTINT", 1),
    Real<&I::INT, &B::P>("PINT", 2),
    Real<&I::INT, &B::Rend>("RendINT", 2),
    Texto<&I::INT, &B::control>("controlINT"),
    Real<&I::RET, &B::Caudal>("CaudalRET", 2),
    Real<&I::RET, &B::DT>("DTRET", 0),
    Real<&I::RET, &B::P>("PRET", 2),
    Real<&I::RET, &B::Rend>("RendRET", 2),
    Texto<&I::RET, &B::control>("controlRET"),
    Real<&I::TimpCalor>("TimpCalor", 0),
    Real<&I::saltoGenerador>("saltoGenerador", 0),
    Real<&I::TimpACS>("TimpACS", 0),
    Real<&I::TimpFrio>("TimpFrio", 0),
    Real<&I::saltoZona>("saltoZona", 0),
    Real<&I::CaudalVent>("CaudalVent", 0),
    Real<&I::SaltoPVent>("SaltoPVent", 0),
    Real<&I::rendVent>("rendVent", 2),
    Real<&I::QcalorCaldera1>("QcalorCaldera1", 2),
    Real<&I::RendCalor1>("RendCalor1", 2),
    Texto<&I::CombCalor1>("CombCalor1"),
    Texto<&I::CombCalorBio1>("CombCalorBio1"),
    Real<&I::RadiadorElectrico>("RadiadorElectrico", 2),
    Entero<&I::Nradiadores>("Nradiadores"),
    Real<&I::QcalorCaldera2>("QcalorCaldera2", 2),
    Real<&I::RendCalor2>("RendCalor2", 2),
    Texto<&I::CombCalor2>("CombCalor2"),
    Texto<&I::CombCalorBio2>("CombCalorBio2"),
    Real<&I::QcalorBC1>("QcalorBC1", 2),
    Real<&I::WeCalor1>("WeCalor1", 2),
    Real<&I::QcalorBC2>("QcalorBC2", 2),
    Real<&I::WeCalor2>("WeCalor2", 2),
    Real<&I::RendCalorEst>("RendCalorEst", 2),
    Real<&I::RendFrioEst>("RendFrioEst", 2),
    Real<&I::RendACSEst>("RendACSEst", 2),
    Real<&I::SCOP>("SCOP", 2),
    Real<&I::QFrioSen1>("QFrioSen1", 2),
    Real<&I::QFrioTot1>("QFrioTot1", 2),
    Real<&I::WeFrio1>("WeFrio1", 2),
    Real<&I::QFrioSen2>("QFrioSen2", 2),
    Real<&I::QFrioTot2>("QFrioTot2", 2),
    Real<&I::WeFrio2>("WeFrio2", 2),
    Real<&I::QApoyoEquipo>("QApoyoEquipo", 2),
    Real<&I::QApoyoTermo>("QApoyoTermo", 2),
    Texto<&I::CombEst>("CombEst")};

constexpr std::array kCamposModelo = {Texto<&I::Fabricante>("Fabricante"),
                                      Texto<&I::Modelo>("Modelo")};

// Grupos de coeficientes; la etiqueta de cada uno lleva su número desde 0.
struct GrupoCurva {
  std::string_view etiqueta;
  std::span<float> (*coeficientes)(C&);
};
constexpr std::array<GrupoCurva, 11> kCurvas = {{
    {"aaQ", [](C& c) -> std::span<float> { return c.aaQ; }},
    {"abQ", [](C& c) -> std::span<float> { return c.abQ; }},
    {"baQ", [](C& c) -> std::span<float> { return c.baQ; }},
    {"bbQ", [](C& c) -> std::span<float> { return c.bbQ; }},
    {"cQ", [](C& c) -> std::span<float> { return c.cQ; }},
    {"aR", [](C& c) -> std::span<float> { return c.aR; }},
    {"eR", [](C& c) -> std::span<float> { return c.eR; }},
    {"bR", [](C& c) -> std::span<float> { return c.bR; }},
    {"cR", [](C& c) -> std::span<float> { return c.cR; }},
    {"cC", [](C& c) -> std::span<float> { return c.cC; }},
    {"gC", [](C& c) -> std::span<float> { return c.gC; }},
}};
constexpr std::string_view kTeCambio = "TeCambio";

// Comienzos de las etiquetas que son resultado de un cálculo anterior y no se conservan.
constexpr std::array<std::string_view, 11> kResultados = {
    "ACSTotalProducido",     "CaleTotalProducido", "FrioTotalProducido", "EnergiaConsumidaEn",
    "RendimientoEstacional", "SCOPEstacional",     "SEEREstacional",     "Caudal2",
    "PotenciaEspecifica",    "ConsumoBomba",       "ConsumoVent"};

// Llama con la etiqueta y el valor de cada coeficiente, en el orden del fichero.
template <class Visitante>
void RecorrerCurvas(C& curvas, Visitante visitar) {
  for (const GrupoCurva& grupo : kCurvas) {
    const std::span<float> coeficientes = grupo.coeficientes(curvas);
    for (std::size_t i = 0; i < coeficientes.size(); ++i)
      visitar(std::string(grupo.etiqueta) + std::to_string(i), coeficientes[i]);
  }
  visitar(std::string(kTeCambio), curvas.TeCambio);
}

// Las etiquetas que tienen campo, en el orden del fichero.
std::vector<std::string> EtiquetasConCampo() {
  std::vector<std::string> etiquetas;
  for (const auto& c : kCamposSistema) etiquetas.emplace_back(c.etiqueta);
  for (const auto& c : kCamposGenerador) etiquetas.emplace_back(c.etiqueta);
  for (const auto& c : kCamposModelo) etiquetas.emplace_back(c.etiqueta);
  C ninguna;
  RecorrerCurvas(ninguna, [&](const std::string& e, float) { etiquetas.push_back(e); });
  return etiquetas;
}

bool EsResultado(std::string_view etiqueta) {
  return std::any_of(kResultados.begin(), kResultados.end(),
                     [etiqueta](std::string_view p) { return etiqueta.starts_with(p); });
}

std::size_t Elementos(const XMLNode& nodo) {
  std::size_t n = 1;
  for (std::size_t i = 0; i < nodo.childCount(); ++i) n += Elementos(nodo.childAt(i));
  return n;
}

// Guarda los elementos que no son campos ni resultados, para devolverlos al escribir.
void LeerDemasCampos(const XMLNode& nodo, const std::vector<std::string>& conCampo, I& generador) {
  std::size_t esperado = 0, desconocidos = 0;
  for (std::size_t i = 0; i < nodo.childCount(); ++i) {
    const XMLNode hijo = nodo.childAt(i);
    const std::string_view nombre = *hijo.nameOf();
    const auto es = [nombre](const std::string& e) { return IgualesSinMayusculas(e, nombre); };
    if (esperado >= conCampo.size() || !es(conCampo[esperado])) {
      const auto it = std::find_if(conCampo.begin(), conCampo.end(), es);
      if (it == conCampo.end()) {
        if (EsResultado(nombre)) continue;
        desconocidos += Elementos(hijo);
        limiteProyecto::Comprobar("elementos desconocidos en un sistema", desconocidos,
                                  limiteProyecto::kDesconocidos);
        generador.campos.push_back(Conservar(hijo));
        continue;
      }
      esperado = static_cast<std::size_t>(it - conCampo.begin());
    }
    ++esperado;
  }
}

// Las curvas del fabricante genérico se leen como las demás para no perderlas al guardar; quien
// prepara el equipo pone en su lugar las del catálogo.
void LeerCurvas(const XMLNode& nodo, C& curvas, Mensajes& mensajes) {
  camposFichero::Buscador buscador(nodo, Lugar::Hijos);
  RecorrerCurvas(curvas, [&](const std::string& etiqueta, float& valor) {
    valor = camposFichero::LeerReal(buscador.Valor(etiqueta).value_or(""), etiqueta, mensajes);
  });
}

S LeerSistema(const XMLNode& nodo, const std::vector<std::string>& conCampo, Mensajes& mensajes) {
  S sistema;
  LeerCampos<S>(nodo, kCamposSistema, sistema, mensajes);
  I& generador = sistema.instalaciones.emplace_back();
  LeerCampos<I>(nodo, kCamposGenerador, generador, mensajes);
  LeerCampos<I>(nodo, kCamposModelo, generador, mensajes);
  LeerCurvas(nodo, generador.curvas, mensajes);
  LeerDemasCampos(nodo, conCampo, generador);
  return sistema;
}

void EscribirGenerador(XMLNode& nodo, I generador, const X::ResultadosSistema* resultados) {
  EscribirCampos<I>(nodo, kCamposGenerador, generador);
  if (resultados != nullptr)
    for (const auto& [etiqueta, valor] : *resultados) AnadirValor(nodo, etiqueta, valor);
  EscribirCampos<I>(nodo, kCamposModelo, generador);
  RecorrerCurvas(generador.curvas, [&nodo](const std::string& etiqueta, float valor) {
    AnadirValor(nodo, etiqueta, Fijo(static_cast<double>(valor), kDecimalesCurva));
  });
  for (const NodoConservado& campo : generador.campos) Devolver(nodo, campo);
}

}  // namespace

void LeerSistemas(const XMLNode& instalaciones, Edificio& edificio, Mensajes& mensajes) {
  const std::vector<std::string> conCampo = EtiquetasConCampo();
  std::size_t i = 0;
  while (const XMLNode nodo = instalaciones.childNamed(kSistema, &i)) {
    edificio.AnadirSistema(LeerSistema(nodo, conCampo, mensajes));
    limiteProyecto::Comprobar("sistemas", edificio.NumeroSistemas(), limiteProyecto::kSistemas);
  }
}

void EscribirSistemas(XMLNode& instalaciones, const X& derivados, const Edificio& edificio) {
  std::size_t bloque = 0;
  for (std::size_t i = 0; i < edificio.NumeroSistemas(); ++i) {
    S sistema = edificio.GetSistema(i);
    for (const I& generador : sistema.instalaciones) {
      XMLNode nodo = instalaciones.appendChild(kSistema);
      EscribirCampos<S>(nodo, kCamposSistema, sistema);
      const bool hay = bloque < derivados.resultadosSistemas.size();
      EscribirGenerador(nodo, generador, hay ? &derivados.resultadosSistemas[bloque] : nullptr);
      ++bloque;
    }
  }
}

std::span<const Campo<SistemaResidencial>> CamposDeSistema() {
  return kCamposSistema;
}

std::span<const Campo<Instalaciones>> CamposDeGenerador() {
  return kCamposGenerador;
}

}  // namespace novex
