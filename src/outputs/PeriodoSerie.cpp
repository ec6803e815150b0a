#include "outputs/PeriodoSerie.h"

#include <algorithm>
#include <cctype>

namespace novex {
namespace {

constexpr int kHorasDia = 24;
constexpr int kHorasSemana = 7 * kHorasDia;

constexpr auto kTitulo = "AVISO";

ConAviso<RangoHoras> SinHoras(const char* texto) {
  return {std::nullopt, {kTitulo, texto}};
}

ConAviso<RangoHoras> Horas(int primera, int cuantas) {
  return {RangoHoras{primera, primera + cuantas - 1}, {}};
}

bool HayMes(int mes) {
  return mes >= 1 && mes <= kMeses;
}

std::string Mes(int h) {
  return kNombreMesCompleto[static_cast<std::size_t>(HoraDelMes(h))];
}

// "1 enero": en las semanas el mes va en minúscula.
std::string DiaDeSemana(int h) {
  std::string mes = Mes(h);
  mes[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(mes[0])));
  return std::to_string(DiaDelMes(h)) + " " + mes;
}

// Un número de 1 a `cuantos` que da la vuelta.
int Ciclo(int n, int cuantos) {
  return ((n - 1) % cuantos + cuantos) % cuantos + 1;
}

std::string NombreTramo(TipoPeriodo tipo, int ultima) {
  constexpr std::size_t kLetrasMes = 3;
  const std::string dia = DiaDeSemana(ultima);
  switch (tipo) {
    case TipoPeriodo::Anual:
      return dia.substr(dia.find(' ') + 1, kLetrasMes);
    case TipoPeriodo::Mensual:
      return std::to_string(DiaDelMes(ultima));
    case TipoPeriodo::Semanal:
      return dia;
    case TipoPeriodo::Diario:
      break;
  }
  return std::to_string(HoraDelDia(ultima));
}

std::string NombreSemana(int semana) {
  const int primera = (semana - 1) * kHorasSemana + 1;
  return DiaDeSemana(primera) + " al " + DiaDeSemana(primera + kHorasSemana - 1);
}

}  // namespace

ConAviso<RangoHoras> HorasDelPeriodo(const PeriodoSerie& p) {
  const auto mes = static_cast<std::size_t>(p.mes);
  switch (p.tipo) {
    case TipoPeriodo::Anual:
      return Horas(1, kHorasAno);
    case TipoPeriodo::Mensual:
      if (!HayMes(p.mes)) return SinHoras("Ese mes no existe");
      return Horas(kUltimaHoraMes[mes - 1] + 1, kHorasDia * kDiasMes[mes]);
    case TipoPeriodo::Semanal:
      if (p.semana < 1 || p.semana > kSemanas) return SinHoras("Esa semana no existe");
      return Horas((p.semana - 1) * kHorasSemana + 1, kHorasSemana);
    case TipoPeriodo::Diario:
      break;
  }
  if (!HayMes(p.mes) || p.dia < 1 || p.dia > kDiasMes[mes]) return SinHoras("Ese día no existe");
  return Horas(kUltimaHoraMes[mes - 1] + (p.dia - 1) * kHorasDia + 1, kHorasDia);
}

std::optional<Mensaje> AvisoTresDimensiones(const PeriodoSerie& periodo) {
  if (periodo.tipo != TipoPeriodo::Diario) return std::nullopt;
  return Mensaje{kTitulo, "No se puede representar una gráficaen 3D para un sólo día"};
}

std::vector<std::string> NombresSemanas() {
  std::vector<std::string> nombres;
  for (int s = 1; s <= kSemanas; ++s) nombres.push_back(NombreSemana(s));
  return nombres;
}

std::string RotuloPeriodo(const PeriodoSerie& p) {
  const auto horas = HorasDelPeriodo(p).valor;
  switch (p.tipo) {
    case TipoPeriodo::Anual:
      return "Anual ";
    case TipoPeriodo::Mensual:
      return horas ? "Mes=" + Mes(horas->primera) + " " : "Mes=";
    case TipoPeriodo::Semanal:
      return horas ? "Semana=" + NombreSemana(p.semana) + " " : "Semana=";
    case TipoPeriodo::Diario:
      break;
  }
  return horas ? "Dia " + std::to_string(p.dia) + " " + Mes(horas->primera) + " " : "Dia";
}

PeriodoSerie PeriodoContiguo(PeriodoSerie p, int pasos) {
  if (p.tipo == TipoPeriodo::Mensual) p.mes = Ciclo(p.mes + pasos, kMeses);
  if (p.tipo == TipoPeriodo::Semanal) p.semana = Ciclo(p.semana + pasos, kSemanas);
  if (p.tipo == TipoPeriodo::Diario) {
    const auto mes = static_cast<std::size_t>(Ciclo(p.mes, kMeses));
    const int dia = kUltimaHoraMes[mes - 1] / kHorasDia + std::clamp(p.dia, 1, kDiasMes[mes]);
    const int h = (Ciclo(dia + pasos, kHorasAno / kHorasDia) - 1) * kHorasDia + 1;
    p.mes = HoraDelMes(h);
    p.dia = DiaDelMes(h);
  }
  return p;
}

std::vector<TramoPeriodo> TramosPeriodo(const PeriodoSerie& p) {
  const auto horas = HorasDelPeriodo(p).valor;
  if (!horas) return {};
  std::vector<TramoPeriodo> tramos;
  int ultima = horas->primera - 1;
  while (ultima < horas->ultima) {
    if (p.tipo == TipoPeriodo::Anual)
      ultima = kUltimaHoraMes[static_cast<std::size_t>(HoraDelMes(ultima + 1))];
    else
      ultima += p.tipo == TipoPeriodo::Diario ? 1 : kHorasDia;
    tramos.push_back({NombreTramo(p.tipo, ultima), ultima});
  }
  return tramos;
}

int DiaDelMes(int h) {
  const int anterior = kUltimaHoraMes[static_cast<std::size_t>(HoraDelMes(h) - 1)];
  return (h - anterior - 1) / kHorasDia + 1;
}

std::string TextoHora(int h) {
  return std::to_string(HoraDelDia(h)) + " h " + std::to_string(DiaDelMes(h)) + " " + Mes(h);
}

}  // namespace novex
