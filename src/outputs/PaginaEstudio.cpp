#include "outputs/PaginaEstudio.h"

#include <algorithm>
#include <cmath>

#include "outputs/ReglasResultados.h"
#include "rating/Escala.h"

namespace novex {
namespace {

constexpr std::string_view kSinMedir = "----";

constexpr std::array<std::string_view, kDatosEstudio> kNombres = {
    "Demanda (kWh/m2 año)",
    "Ahorros demanda %",
    "Energ.final (kWh/m2 año)",
    "Ahorros energ.final %",
    "Energ.prim.No renov (kWh/m2 año)",
    "Ahorros energ.prim.No renov%",
    "Emisiones (kgCO2/m2 año)",
    "Ahorros emisiones CO2 %",
    "Calificación CO2",
    "Calif.Energ.prim.No renov"};

bool EsAhorro(DatoEstudio dato) {
  return dato == DatoEstudio::AhorroDemanda || dato == DatoEstudio::AhorroFinal ||
         dato == DatoEstudio::AhorroPrimariaNoRenovable || dato == DatoEstudio::AhorroEmisiones;
}

// Indicador de la letra de un dato; vacío en los que no son letras.
std::optional<Indicador> IndicadorDeDato(DatoEstudio dato) {
  if (dato == DatoEstudio::CalificacionCO2) return Indicador::EmisionesTotales;
  if (dato == DatoEstudio::CalificacionPrimaria) return Indicador::EPriNoRTotales;
  return std::nullopt;
}

// La cifra de un dato, o aquella de que se ahorra.
double Cifra(DatoEstudio dato, const ResultadoMedida& m) {
  using C = CifraMedida;
  const auto de = [&](C cifra) { return static_cast<double>(m[cifra]); };
  switch (dato) {
    case DatoEstudio::Demanda:
    case DatoEstudio::AhorroDemanda:
      return de(C::DemandaCale) + de(C::DemandaRef);
    case DatoEstudio::Final:
    case DatoEstudio::AhorroFinal:
      return de(C::EnergiaFinalTotal);
    case DatoEstudio::PrimariaNoRenovable:
    case DatoEstudio::AhorroPrimariaNoRenovable:
      return de(C::EnergiaPrimariaTotal);
    default:
      return de(C::EmisionesTotal);
  }
}

const std::string& Letra(Indicador indicador, const ResultadoMedida& m) {
  return m.letras[static_cast<std::size_t>(indicador)];
}

}  // namespace

std::vector<DatoEstudio> DatosDePagina(PaginaMedida pagina) {
  std::vector<DatoEstudio> datos;
  for (std::size_t i = pagina == PaginaMedida::Equipos ? 2 : 0; i < kDatosEstudio; ++i)
    datos.push_back(static_cast<DatoEstudio>(i));
  return datos;
}

std::string_view NombreDato(DatoEstudio dato, PaginaMedida pagina) {
  if (dato == DatoEstudio::AhorroPrimariaNoRenovable && pagina == PaginaMedida::Equipos)
    return "Ahorros energ.prim.No renov %";
  return kNombres.at(static_cast<std::size_t>(dato));
}

std::string TextoDato(DatoEstudio dato, const ResultadoMedida* medida,
                      const ResultadoMedida& base) {
  if (medida == nullptr) return std::string(kSinMedir);
  if (const auto indicador = IndicadorDeDato(dato)) return Letra(*indicador, *medida);
  const double valor = Cifra(dato, *medida);
  if (!EsAhorro(dato)) return Fijo(valor, kDecimalesResultado);
  return Fijo(Ahorro(Cifra(dato, base), valor).value_or(0), kDecimalesResultado);
}

std::string TextoDatoBase(DatoEstudio dato, const ResultadoMedida& base) {
  if (const auto indicador = IndicadorDeDato(dato)) return Letra(*indicador, base);
  const bool emisiones = dato == DatoEstudio::Emisiones || dato == DatoEstudio::AhorroEmisiones;
  return Fijo(Cifra(dato, base), kDecimalesResultado) +
         (emisiones ? " kgCO2/m2 año" : " kWh/m2 año");
}

Tabla TablaPaginaEstudio(PaginaMedida pagina, DatoEstudio dato, const ResultadoMedida& base,
                         const std::vector<ResultadoMedida>& medidas,
                         const EstudioModificaciones& estudio) {
  const std::vector<int> marcados = CodigosMarcados(estudio);
  Tabla tabla;
  tabla.titulo = NombreDato(dato, pagina);
  tabla.cabeceras = {"", "Código", "Valor", "Medida"};
  tabla.filas.push_back({"", "", TextoDatoBase(dato, base), "El caso como está"});
  for (const MedidaPredefinida& m : MedidasPredefinidas()) {
    if (m.pagina != pagina) continue;
    const auto medida = std::find_if(medidas.begin(), medidas.end(),
                                     [&](const auto& r) { return r.codigo == m.codigo; });
    const bool marcada = std::binary_search(marcados.begin(), marcados.end(), m.codigo);
    tabla.filas.push_back({marcada ? "*" : "", std::to_string(m.codigo),
                           TextoDato(dato, medida == medidas.end() ? nullptr : &*medida, base),
                           m.texto});
  }
  return tabla;
}

std::string TextoQuedan(double media, std::size_t pasos) {
  const auto segundos = std::lround(std::max(0.0, media) * static_cast<double>(pasos));
  return "Quedan: " + std::to_string(segundos / 60) + " min " + std::to_string(segundos % 60) +
         " s";
}

}  // namespace novex
