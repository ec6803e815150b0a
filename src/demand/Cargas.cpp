#include "demand/Cargas.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "demand/Convolucion.h"
#include "model/CatalogoCampos.h"

namespace novex {
namespace {

// Parte radiante que llega en cada hora, en tanto por ciento.
constexpr std::array<double, 23> kRadiante = {31, 16, 11, 7, 6, 4, 4, 3, 3, 2, 2, 2,
                                              1,  1,  1,  1, 1, 1, 1, 1, 1, 0, 0};

// Partes convectivas.
constexpr double kConvectivaMuro = 0.54;
constexpr double kConvectivaTecho = 0.4;
constexpr double kConvectivaCond = 0.67;
constexpr double kConvectivaOcupantes = 0.4;
constexpr double kConvectivaIluminacion = 0.2;
constexpr double kConvectivaEquipos = 0.9;

constexpr int kUltimaHoraNoche = 7;  // de 0 a 7 h con las ventanas abiertas

void Retardar(SerieHoraria& serie, double convectiva) {
  std::array<double, 23> pesos{};
  for (std::size_t k = 0; k < pesos.size(); ++k) pesos[k] = kRadiante[k] * (1 - convectiva) / 100;
  pesos[0] += convectiva;
  ConvolucionExacta(serie, pesos, serie);
  RedondearSerie(serie, 2);
}

// Valores de los horarios de un día: la tabla de su clase, o ceros en un día sin uso.
struct HorariosDia {
  const Perfiles& perfiles;
  int codigo;
  float operator()(Familia f, int d) const {
    if (codigo == 0) return 0.0F;
    return perfiles.tabla[f][static_cast<std::size_t>(codigo - 1)][static_cast<std::size_t>(d)];
  }
};

void ExpandirHora(int h, int d, const HorariosDia& dia, const DatosGenerales& g,
                  const AjustesUso& ajustes, SeriesCarga& carga) {
  const bool r = ajustes.residencial;
  // Las tablas terciarias son tantos por ciento del pico; las residenciales, W/m2.
  carga.QOCUPSh[h] = dia(C1, d) * (r ? 1.0F : 0.01F * g.Sensibleocupantes);
  carga.latente[h] = dia(C2, d) * (r ? 1.0F : 0.01F * g.Latenteocupantes);
  carga.QILUh[h] = dia(CIlu, d) * (r ? 1.0F : 0.01F * g.Iluminacion);
  carga.QEQh[h] = dia(CEq, d) * (r ? 1.0F : 0.01F * g.Equipos);
  const bool porOcupacion = !r && ajustes.aire != SistemaAire::Toma && ajustes.PorOcupacion();
  carga.NRR[h] = dia(porOcupacion ? C1 : CNR, d);
  carga.TCR[h] = dia(CTCh, d);
  carga.TRR[h] = dia(CTRh, d);
  carga.CCAC[h] = dia(CCAC, d);
}

void AplicarMes(int h, int d, int m, const AjustesUso& ajustes, SeriesCarga& carga) {
  const auto mes = static_cast<std::size_t>(m);
  if (ajustes.verano[mes] && d <= kUltimaHoraNoche && ajustes.ventanasAbiertas &&
      ajustes.residencial)
    carga.NRR[h] = kVentanasAbiertas;
  const AccionMes accion = ajustes.accion[mes];
  if (accion == AccionMes::SoloCale || accion == AccionMes::Nada) carga.TRR[h] = 0;
  if (accion == AccionMes::SoloRefri || accion == AccionMes::Nada) carga.TCR[h] = 0;
}

bool CodigoValido(int codigo) {
  return codigo >= 0 && codigo <= static_cast<int>(kClasesDia);
}

}  // namespace

void LeerUsoBase(const XMLNode& raiz, SeriesCarga& carga, Mensajes& mensajes) {
  const auto numero = [&mensajes](const XMLNode& nodo, std::string_view atributo) {
    return ValorSinComprobar(nodo.attributeValue(atributo).value_or(""), mensajes);
  };
  const int horas = static_cast<int>(std::min<std::size_t>(raiz.childCount(), kHorasAno));
  for (int h = 1; h <= horas; ++h) {
    const XMLNode nodo = raiz.childAt(static_cast<std::size_t>(h - 1));
    carga.QOCUPSh[h] = numero(nodo, "QOCUPSR");
    carga.QILUh[h] = numero(nodo, "QILUR");
    carga.QEQh[h] = numero(nodo, "QEQR");
    carga.NRR[h] = numero(nodo, "NRR");
    carga.TCR[h] = numero(nodo, "TCR");
    carga.TRR[h] = numero(nodo, "TRR");
  }
}

bool NecesitaUsoBase(const DatosGenerales& generales) {
  const auto& calendario = generales.perfiles.calendario;
  return !std::all_of(calendario.begin(), calendario.begin() + 365, CodigoValido);
}

void GenerarCargas(const DatosGenerales& generales, const AjustesUso& ajustes, SeriesCarga& carga) {
  int m = 1;
  for (int h = 1; h <= kHorasAno; ++h) {
    if (h > kUltimaHoraMes[static_cast<std::size_t>(m)]) ++m;
    const int d = HoraDelDia(h);
    const int codigo = generales.perfiles.calendario[static_cast<std::size_t>(DiaDelAno(h) - 1)];
    if (CodigoValido(codigo))
      ExpandirHora(h, d, HorariosDia{generales.perfiles, codigo}, generales, ajustes, carga);
    AplicarMes(h, d, m, ajustes, carga);
  }
  carga.QOCUPShT = carga.QOCUPSh;
  carga.QILUhT = carga.QILUh;
  carga.QEQhT = carga.QEQh;
}

void AplicarRetardoRadiante(SeriesCarga& carga, SeriesClima& clima) {
  for (auto& s : clima.MLIGERO) Retardar(s, kConvectivaMuro);
  for (auto& s : clima.CLIGERO) Retardar(s, kConvectivaTecho);
  Retardar(clima.CLIGEROH, kConvectivaTecho);
  Retardar(clima.SUELOEXT, kConvectivaMuro);
  Retardar(clima.COND, kConvectivaCond);
  Retardar(carga.QOCUPSh, kConvectivaOcupantes);
  Retardar(carga.QILUh, kConvectivaIluminacion);
  Retardar(carga.QEQh, kConvectivaEquipos);
}

}  // namespace novex
