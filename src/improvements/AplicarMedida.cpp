#include "improvements/AplicarMedida.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <utility>
#include <vector>

#include "base/NumeroTexto.h"
#include "demand/PuentesTermicos.h"
#include "demand/TransmitanciasEfectivas.h"
#include "demand/VentiladorAire.h"
#include "entry/CambiarGenerales.h"
#include "entry/CosteMejora.h"
#include "improvements/GeneradorSupuesto.h"
#include "improvements/MedidasPredefinidas.h"

namespace novex {
namespace {

constexpr float kConductividadAislante = 0.04F;  // W/mK
constexpr float kDensidadAislante = 40.0F;       // kg/m3
constexpr float kCalorAislante = 1000.0F;        // J/kgK
constexpr int kPuentesDados = 4;
constexpr int kPuentesLider = 5;

const MedidaPredefinida& Medida(int codigo) {
  const MedidaPredefinida* medida = MedidaDeCodigo(codigo);
  if (medida == nullptr) throw std::out_of_range("no hay ninguna medida con ese código");
  return *medida;
}

std::string Cifra(float valor) {
  std::string texto = General(valor);
  if (const auto punto = texto.find('.'); punto != std::string::npos) texto[punto] = ',';
  return texto;
}

material Aislante(float R) {
  material m;
  m.Espesor = R * kConductividadAislante;
  m.Material = m.Nombre_material = "Aislante 0,04 W/mK";
  m.Iniciales = "AIS";
  m.Conductividad = kConductividadAislante;
  m.Densidad = kDensidadAislante;
  m.CalorEspecifico = kCalorAislante;
  m.Resistencia_termica = R;
  m.Resisvidad_relativa_vapor = 1;
  m.Grupo = "Aislantes";
  m.Pertenece_a_base_de_datos_CTE = "NO";
  m.Aplicacion = "M";
  return m;
}

// Añade el aislante por fuera: a la composición, o a la U si solo se ha dado ella.
void Aislar(Edificio& edificio, std::size_t ranura, float R) {
  const composicion antes = edificio.GetComposicion(ranura);
  std::vector<material> capas;
  for (const material* capa : antes.capas) capas.push_back(*capa);
  if (!capas.empty()) {
    edificio.LimpiarComposicion(ranura);
    for (material& capa : capas) capa.usos = 0;
    edificio.AnadirMaterial(Aislante(R), ranura);
    for (material& capa : capas) edificio.AnadirMaterial(std::move(capa), ranura);
    edificio.GetComposicion(ranura).nombre =
        antes.nombre + " + aislante " + Cifra(std::round(R * kConductividadAislante * 100)) + " cm";
  }
  edificio.GetComposicion(ranura).U = 1.0F / (1.0F / antes.U + R);
}

// Las posiciones con composición a las que una medida de aislamiento añade resistencia.
std::vector<std::pair<std::size_t, float>> Aisladas(const Edificio& edificio, const Forzados& f) {
  std::vector<std::pair<std::size_t, float>> lista;
  for (std::size_t i = 0; i < kRanuras; ++i)
    if (const float R = ResistenciaAnadida(i, f); R > 0.0F && edificio.GetComposicion(i).U > 0.0F)
      lista.emplace_back(i, R);
  return lista;
}

void PonerPuentes(Edificio& edificio, int forzado) {
  Construccion c = edificio.GetConstruccion();
  // Sin pilares solo con valores dados o por defecto: en los demás modos cuentan.
  if (c.Def_Puentes_termicos != kPuentesDados && c.Def_Puentes_termicos != kPuentesLider)
    c.Existencia_pilares = 0;
  c.Def_Puentes_termicos = kPuentesDados;
  c.U_L_Puentes = PuentesForzados(c.U_L_Puentes, forzado, edificio.GetLocalizacion().ZonaClimatica);
  edificio.SetConstruccion(std::move(c));
}

void PonerHuecos(Edificio& edificio, const Forzados& f) {
  const auto poner = [](float& campo, float valor) {
    if (valor != 0.0F) campo = valor;
  };
  for (std::size_t i = 0; i < edificio.NumeroHuecos(); ++i) {
    Huecos& h = edificio.GetHuecos(i);
    poner(h.U_cristal_W_m2K, f.UCristalForzado);
    poner(h.U_marco_W_m2K, f.UMarcoForzado);
    poner(h.FS_cristal_tanto_por_uno, f.FSCristalForzado);
    poner(h.Permeabilidad_Ventanas, f.PermeabilidadForzada);
  }
}

void PonerRecuperador(Edificio& edificio, float eficiencia) {
  const Ventilacion& v = edificio.GetVentilacion();
  const float caudal = edificio.GetRecinto(0).Volumen_total_m3 * v.nrenovventilacion;
  const float viviendas =
      edificio.GetDatosGenerales().PerfilUso == 1 ? static_cast<float>(v.NumeroViviendas()) : 1.0F;
  CambiarGenerales(edificio, [&](DatosGenerales& g) {
    g.TipoVentilacion2 = "Mecanica";
    g.Recuperador = "SensibleSinBypass";
    g.Eficiencia_recuperador = eficiencia;
    g.WRecuperador = viviendas > 0.0F
                         ? PotenciaRecuperadorForzado(eficiencia, caudal, viviendas) / viviendas
                         : 0.0F;
  });
}

// Lo que impide aplicar una medida en cualquier caso o en este; vacío si nada.
std::string Motivo(const Edificio& edificio, const Forzados& f) {
  const DatosGenerales& g = edificio.GetDatosGenerales();
  if (ParteSolarForzada(f.CasoACS) > 0.0F)
    return "La medida supone una parte solar: los captadores se definen en Instalaciones";
  if (std::string motivo = ImpideGenerador(edificio, f); !motivo.empty()) return motivo;
  if (f.FactorSolarVerano > 0.0F)
    return "La medida reduce lo mismo el sol de todos los huecos: un toldo se define en cada grupo "
           "de huecos, con su protección solar móvil";
  if (f.EficienciaRecuperadorForzada > 0.0F && !g.EsResidencial())
    return "En un uso terciario la medida supone la misma eficacia con cualquier caudal: el "
           "recuperador se define en Global, con su control";
  const bool aisla = f.ExtraRCubiertas + f.ExtraRMuros + f.ExtraRSuelos > 0.0F;
  const bool mas = f.PuentesForzados != 0 || f.UCristalForzado + f.UMarcoForzado > 0.0F ||
                   f.FSCristalForzado + f.PermeabilidadForzada > 0.0F;
  if (aisla && !mas && Aisladas(edificio, f).empty())
    return "El caso no tiene ningún elemento que aislar";
  const bool soloAire = f.PermeabilidadForzada > 0.0F && f.UCristalForzado == 0.0F;
  if (soloAire && g.Tipon50 != "Teorico")
    return "El caso da la estanqueidad medida en un ensayo, que no sale de la permeabilidad de los "
           "huecos";
  return {};
}

std::string TextoAislados(const Forzados& f) {
  std::string donde;
  const auto anadir = [&](float R, const char* que) {
    if (R > 0.0F) donde += (donde.empty() ? "" : ", ") + std::string(que);
  };
  anadir(f.ExtraRCubiertas, "las cubiertas");
  anadir(f.ExtraRMuros, "los muros");
  anadir(f.ExtraRSuelos, "los suelos");
  if (donde.empty()) return {};
  const float R = std::max({f.ExtraRCubiertas, f.ExtraRMuros, f.ExtraRSuelos});
  return "una capa de " + Cifra(std::round(R * kConductividadAislante * 100)) +
         " cm de aislante por fuera en la composición de " + donde +
         ", o su U si no tiene composición";
}

std::string Cambios(const Edificio& edificio, const Forzados& f) {
  std::vector<std::string> lista;
  if (auto texto = CambiosGenerador(edificio, f); !texto.empty()) lista.push_back(std::move(texto));
  if (auto texto = TextoAislados(f); !texto.empty()) lista.push_back(std::move(texto));
  if (f.PuentesForzados != 0)
    lista.push_back(
        "las transmitancias lineales de los puentes térmicos, que pasan a valores "
        "dados");
  const auto hueco = [&](const char* que, float valor, const char* unidad) {
    if (valor > 0.0F)
      lista.push_back(std::string(que) + " de todos los huecos a " + Cifra(valor) + unidad);
  };
  hueco("la U del vidrio", f.UCristalForzado, " W/m²K");
  hueco("la U del marco", f.UMarcoForzado, " W/m²K");
  hueco("el factor solar del vidrio", f.FSCristalForzado, "");
  hueco("la permeabilidad", f.PermeabilidadForzada, " m³/h m²");
  if (f.EficienciaRecuperadorForzada > 0.0F)
    lista.push_back("un recuperador sensible del " + Cifra(f.EficienciaRecuperadorForzada) +
                    " % con ventilación mecánica, y la potencia de sus ventiladores");
  if (f.ExtraPotPicoFV > 0.0F)
    lista.push_back(Cifra(f.ExtraPotPicoFV) + " kW pico más en el primer campo fotovoltaico");
  std::string texto = "Cambia ";
  for (std::size_t i = 0; i < lista.size(); ++i) texto += (i == 0 ? "" : "; ") + lista[i];
  return texto + ".";
}

}  // namespace

AplicacionMedida DescribirAplicacion(const Edificio& edificio, int codigo) {
  const Forzados& f = Medida(codigo).forzados;
  std::string motivo = Motivo(edificio, f);
  if (!motivo.empty()) return {{}, std::move(motivo)};
  return {Cambios(edificio, f), {}};
}

void AplicarMedida(Edificio& edificio, int codigo) {
  const MedidaPredefinida& medida = Medida(codigo);
  const Forzados& f = medida.forzados;
  if (!Motivo(edificio, f).empty()) return;
  for (const auto& [ranura, R] : Aisladas(edificio, f)) Aislar(edificio, ranura, R);
  if (f.PuentesForzados != 0) PonerPuentes(edificio, f.PuentesForzados);
  PonerHuecos(edificio, f);
  if (f.EficienciaRecuperadorForzada > 0.0F)
    PonerRecuperador(edificio, f.EficienciaRecuperadorForzada);
  if (f.ExtraPotPicoFV > 0.0F)
    CambiarGenerales(edificio, [&](DatosGenerales& g) {
      g.Existe_fotovoltaica = "Si";
      g.PotPico_FV[0] += f.ExtraPotPicoFV;
    });
  PonerGeneradorSupuesto(edificio, f);
  PonerNombreMejora(edificio, medida.texto);
}

}  // namespace novex
