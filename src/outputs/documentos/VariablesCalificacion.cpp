#include "outputs/documentos/VariablesCalificacion.h"

namespace novex {
namespace {

constexpr int kCifrasDocumento = 5;
constexpr int kDecimalesDocumento = 2;
constexpr const char* kBanda = "ABCDEFG";

// Las variables de un indicador: la de su valor, la de su índice y la de su letra. Los nombres son
// los de las plantillas, con sus guiones dobles.
struct VariablesDe {
  Indicador indicador;
  const char* valor;
  const char* indice;
  const char* letra;
};
constexpr std::array kIndicadoresDocumento = {
    VariablesDe{Indicador::EmisionesCalefaccion, "EMI_CAL_CO2", "I_EMI_CAL_CO2", "W_EMI_CAL_CO2"},
    VariablesDe{Indicador::EmisionesACS, "EMI_ACS_CO2", "I__EMI_ACS_CO2", "W__EMI_ACS_CO2"},
    VariablesDe{Indicador::EmisionesRefrigeracion, "EMI_REF_CO2", "I__EMI_REF_CO2",
                "W__EMI_REF_CO2"},
    VariablesDe{Indicador::EmisionesIlu, "EMI_ILU_CO2", nullptr, "W__EMI_ILU_CO2"},
    VariablesDe{Indicador::EmisionesTotales, "EMI_GL_CO2", nullptr, nullptr},
    VariablesDe{Indicador::EmisionesTotales, "CO2GL", nullptr, nullptr},
    VariablesDe{Indicador::EPriNoRCalefaccion, "PRIM_CAL", "I_PRIM_CAL", "W_PRIM_CAL"},
    VariablesDe{Indicador::EPriNoRACS, "PRIM_ACS", "I_PRIM_ACS", "W__PRIM_ACS"},
    VariablesDe{Indicador::EPriNoRRefrigeracion, "PRIM_REF", "I_PRIM_REF", "W_PRIM_REF"},
    VariablesDe{Indicador::EPriNoRIlu, "PRIM_ILU", nullptr, "W_ILU_REF"},
    VariablesDe{Indicador::EPriNoRTotales, "PRIM_GL", nullptr, nullptr},
    VariablesDe{Indicador::DemandaCalefaccion, "DEM_GL_CAL", nullptr, nullptr},
    VariablesDe{Indicador::DemandaRefrigeracion, "DEM_GL_REF", nullptr, nullptr},
    VariablesDe{Indicador::DemandaCalefaccion, "DEMGLCAL", nullptr, nullptr},
    VariablesDe{Indicador::DemandaRefrigeracion, "DEMGLREF", nullptr, nullptr}};

bool EsDeRefrigeracion(Indicador i) {
  return i == Indicador::EmisionesRefrigeracion || i == Indicador::EPriNoRRefrigeracion ||
         i == Indicador::DemandaRefrigeracion;
}

// El valor sobre el de la referencia; sin ella, "( - )" en refrigeración y nada en lo demás.
std::string Indice(Indicador i, const ResultadosCaso& r) {
  const float referencia = r.escala.referencia[static_cast<std::size_t>(i)];
  if (referencia > 0.0F) return CifraDocumento(ValorIndicador(i, r) / referencia);
  return EsDeRefrigeracion(i) ? std::string(kSinLetra) : std::string();
}

// Añade los textos de una escala con los nombres que da `nombre(letra)`.
template <class Nombre>
void Serie(Indicador indicador, const CasoCalculado& caso, Nombre nombre,
           std::vector<VBLE>& variables) {
  const bool nuevo = caso.edificio->GetDatosGenerales().Modo_trabajo == "Nuevo";
  // Lo que no se califica no enseña escala aunque la zona la tenga.
  const bool califica = LetraMostrada(indicador, caso) != kSinLetra;
  const auto textos = TextosBandas(
      califica ? caso.resultado->resultados.escala.th[static_cast<std::size_t>(indicador)]
               : UmbralesEscala{},
      nuevo);
  for (std::size_t b = 0; b < textos.size(); ++b)
    variables.push_back({nombre(kBanda[b]), textos[b]});
}

// "LIMAEPNR", "MINBEPNR"...
auto Juntos(const char* fin) {
  return [fin](char b) { return std::string(b == 'A' ? "LIM" : "MIN") + std::string(1, b) + fin; };
}

// "LIM_A_P1", "MIN_B_P1"... \param primera y demas lo que va delante de la "A" y de las demás
auto Separados(const char* primera, const char* demas, const char* fin) {
  return [=](char b) {
    return std::string(b == 'A' ? primera : demas) + "_" + std::string(1, b) + "_" + fin;
  };
}

// Orden de las cuatro escalas numeradas.
constexpr std::array<Indicador, 4> kEscalasP = {
    Indicador::EmisionesTotales, Indicador::EPriNoRTotales, Indicador::DemandaCalefaccion,
    Indicador::DemandaRefrigeracion};
constexpr std::array<Indicador, 4> kEscalasM = {
    Indicador::EPriNoRTotales, Indicador::EmisionesTotales, Indicador::DemandaCalefaccion,
    Indicador::DemandaRefrigeracion};
constexpr std::array<const char*, 4> kP = {"P1", "P2", "P3", "P4"};
constexpr std::array<const char*, 4> kM = {"M1", "M2", "M3", "M4"};

}  // namespace

std::string CifraDocumento(float valor) {
  return FijoCifras(static_cast<double>(valor), kCifrasDocumento, kDecimalesDocumento);
}

std::array<std::string, kBandas> TextosBandas(const UmbralesEscala& umbrales, bool nuevo) {
  std::array<std::string, kBandas> textos;
  const bool hastaE = UltimaBanda(nuevo, umbrales) < kBandas - 1;
  if (!HayEscala(umbrales)) {
    textos.fill(std::string(kSinLetra));
    if (nuevo) textos[5] = textos[6] = " ";
    return textos;
  }
  const auto t = [&](std::size_t i) { return CifraDocumento(umbrales[i]); };
  const auto entre = [&](std::size_t i) {
    return t(i - 1) + " <= " + std::string(1, kBanda[i]) + " <" + t(i);
  };
  textos[0] = "     A < " + t(0);
  for (std::size_t b = 1; b < 4; ++b) textos[b] = entre(b);
  if (hastaE) {
    textos[4] = "     E >= " + t(3);
    textos[5] = textos[6] = " ";
  } else {
    textos[4] = entre(4);
    textos[5] = entre(5);
    textos[6] = "     G >= " + t(5);
  }
  for (std::string& texto : textos) texto = TextoHtml(texto);
  return textos;
}

void VariablesIndicadores(const CasoCalculado& caso, std::vector<VBLE>& variables) {
  const ResultadosCaso& r = caso.resultado->resultados;
  const bool residencial = caso.edificio->GetDatosGenerales().EsResidencial();
  const bool sinFrio = RefrigeracionFuera(*caso.edificio);
  for (const VariablesDe& v : kIndicadoresDocumento) {
    if (residencial && EsDeIluminacion(v.indicador)) continue;
    const bool fuera = sinFrio && EsDeRefrigeracion(v.indicador);
    // Delante del valor: la marca "_EMI_CAL_CO2_" está también dentro de "_I_EMI_CAL_CO2_".
    if (v.indice != nullptr) variables.push_back({v.indice, Indice(v.indicador, r)});
    if (v.letra != nullptr)
      variables.push_back(
          {v.letra, fuera ? std::string(kSinLetra) : LetraMostrada(v.indicador, caso)});
    variables.push_back(
        {v.valor, fuera ? std::string(kSinLetra) : CifraDocumento(ValorIndicador(v.indicador, r))});
  }
}

void VariablesEscalas(const CasoCalculado& caso, std::vector<VBLE>& variables) {
  Serie(Indicador::EPriNoRTotales, caso, Juntos("EPNR"), variables);
  Serie(Indicador::EmisionesTotales, caso, Juntos("CO2"), variables);
  for (std::size_t i = 0; i < kP.size(); ++i)
    Serie(kEscalasP[i], caso, Separados("LIM", "MIN", kP[i]), variables);
  Serie(Indicador::EmisionesTotales, caso, Separados("LIM", "LIM", "M2"), variables);
  for (std::size_t i = 0; i < kM.size(); ++i)
    Serie(kEscalasM[i], caso, Separados("MIM", "MIM", kM[i]), variables);
}

void VariablesEscalasMejora(const CasoCalculado& caso, std::vector<VBLE>& variables) {
  for (std::size_t i = 0; i < kM.size(); ++i)
    Serie(kEscalasM[i], caso, Separados("LIM", "MIN", kM[i]), variables);
}

}  // namespace novex
