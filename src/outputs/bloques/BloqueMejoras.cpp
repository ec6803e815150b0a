#include <algorithm>
#include <array>

#include "model/ListasMejora.h"
#include "outputs/bloques/Bloque.h"
#include "outputs/bloques/BloquesResultados.h"

namespace novex {
namespace {

using bloque::Grupo;
using bloque::Hoja;
using D = DatosGenerales;

constexpr const char* kMejoraSinNombre = "Mejora";
constexpr std::size_t kMemoDescripcion = 0;  // de una mejora
constexpr std::size_t kMemoVisitas = 1, kMemoObservaciones = 4;
constexpr std::size_t kMemoSecuencia = 7;  // en la base; en una mejora, sus otros datos

struct NombreElegido {
  bool D::*campo;
  const char* nombre;
};
constexpr std::array kCondiciones = {
    NombreElegido{&D::CBConfort, "ConfortTermicoBienestar"},
    NombreElegido{&D::CBIluminacion, "Iluminacion"},
    NombreElegido{&D::CBMovilidad, "MovilidadSostenible"},
    NombreElegido{&D::CBSeguridad, "SeguridadEstructural"},
    NombreElegido{&D::CBAccesibilidad, "SeguridadUtilizacionAccesibilidad"},
    NombreElegido{&D::CBIncendios, "ProteccionIncendios"},
    NombreElegido{&D::CBSalubridad, "Salubridad"},
    NombreElegido{&D::CBRuido, "ProteccionRuido"},
    NombreElegido{&D::CBOtros, "Otros"}};
constexpr std::array kIntervenciones = {NombreElegido{&D::CBHuecos, "EnvHuecos"},
                                        NombreElegido{&D::CBCubiertas, "EnvCubierta"},
                                        NombreElegido{&D::CBFachadas, "EnvFachada"},
                                        NombreElegido{&D::CBSuelos, "EnvSuelo"},
                                        NombreElegido{&D::CBMedianeras, "EnvMedianera"},
                                        NombreElegido{&D::CBSombras, "EnvSombras"},
                                        NombreElegido{&D::CBGeneracionTermica, "GeneracionTermica"},
                                        NombreElegido{&D::CBRenovables, "Renovables"},
                                        NombreElegido{&D::CBIluminacion2, "Iluminacion"},
                                        NombreElegido{&D::CBDistribucion, "Distribucion"},
                                        NombreElegido{&D::CBRecuperacion, "RecuperacionEnergia"},
                                        NombreElegido{&D::CBOtras, "Otras"},
                                        NombreElegido{&D::CBUsoIntervencion, "Uso"}};

// Cada nombre elegido lleva un blanco delante.
template <std::size_t N>
std::string Elegidos(const D& d, const std::array<NombreElegido, N>& nombres) {
  std::string texto;
  for (const NombreElegido& n : nombres)
    if (d.*n.campo) texto += std::string(" ") + n.nombre;
  return texto;
}

std::string Lineas(const std::vector<std::string>& memo) {
  std::string texto;
  for (std::size_t i = 0; i < memo.size(); ++i) texto += (i > 0 ? "\n" : "") + memo[i];
  return texto;
}

template <std::size_t N>
std::string DeLista(const std::array<std::string_view, N>& lista, int posicion) {
  return posicion >= 0 && posicion < static_cast<int>(N)
             ? std::string(lista[static_cast<std::size_t>(posicion)])
             : std::string();
}

std::string NombreMejora(const D& d) {
  return d.MedidaMejora.empty() ? kMejoraSinNombre : d.MedidaMejora;
}

NodoConservado Medida(const CasoCalculado& caso) {
  const D& d = caso.edificio->GetDatosGenerales();
  return Grupo(
      "MedidaMejora",
      {Hoja("Nombre", NombreMejora(d)), Hoja("Descripcion", Lineas(d.Memo[kMemoDescripcion])),
       Hoja("CosteEstimado", DeLista(kCostesMejora, d.Coste)),
       Hoja("PlazoRecuperacion", DeLista(kPlazosFichero, d.PlazoAmortizacion)),
       Hoja("OtrosDatos", Lineas(d.Memo[kMemoSecuencia])),
       Hoja("MejoraCondiciones", Elegidos(d, kCondiciones)), BloqueIndicadores(caso),
       BloqueCalificacion(caso)});
}

void AnadirFechados(const char* nombre, float cuantos, const std::array<std::string, 3>& fechas,
                    std::size_t primerMemo, const D& d, std::vector<NodoConservado>& nodos) {
  const auto n = static_cast<std::size_t>(std::clamp(cuantos, 0.0F, 3.0F));
  for (std::size_t i = 0; i < n; ++i)
    nodos.push_back(Grupo(
        nombre, {Hoja("Fecha", fechas[i]), Hoja("Descripcion", Lineas(d.Memo[primerMemo + i]))}));
}

}  // namespace

NodoConservado BloqueMedidasMejora(const CasoCalculado& base,
                                   const std::vector<CasoCalculado>& mejoras) {
  NodoConservado bloque = Grupo("MedidasMejora");
  NodoConservado secuencia = Grupo("SecuenciaTemporal");
  bloque.hijos.push_back(Hoja("SinPosibilidadMejora", mejoras.empty() ? "Si" : "No"));
  for (const CasoCalculado& mejora : mejoras) {
    bloque.hijos.push_back(Medida(mejora));
    secuencia.hijos.push_back(Hoja("Medida", NombreMejora(mejora.edificio->GetDatosGenerales())));
  }
  secuencia.hijos.push_back(
      Hoja("Justificacion", Lineas(base.edificio->GetDatosGenerales().Memo[kMemoSecuencia])));
  bloque.hijos.push_back(std::move(secuencia));
  return bloque;
}

NodoConservado BloqueInspecciones(const DatosGenerales& d) {
  NodoConservado bloque = Grupo("InspeccionesObservaciones");
  AnadirFechados("Visita", d.NumeroVisitas, d.FechaVisita, kMemoVisitas, d, bloque.hijos);
  AnadirFechados("Observacion", d.NumeroObservaciones, d.FechaObservacion, kMemoObservaciones, d,
                 bloque.hijos);
  bloque.hijos.push_back(Hoja("Intervenciones", Elegidos(d, kIntervenciones)));
  return bloque;
}

}  // namespace novex
