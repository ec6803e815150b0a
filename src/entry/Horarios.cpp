#include "entry/Horarios.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <utility>

#include "base/Calendario.h"
#include "base/NumeroTexto.h"
#include "base/Texto.h"
#include "demand/Cargas.h"
#include "entry/CambiarGenerales.h"
#include "model/CatalogoCampos.h"
#include "reference/PerfilesUso.h"

namespace novex {
namespace {

constexpr std::size_t kHorasDia = 24;
constexpr std::size_t kDiasAno = 365;
constexpr float kConsignaMaxima = 50;
constexpr double kMargenReparto = 0.5;  // % que puede faltar o sobrar al reparto de un día

// Los rótulos de las tres cargas en W/m2 y en tanto por ciento, y la clave de sus límites.
struct CargaHoraria {
  std::string_view absoluta, relativa, sujeto, clave;
};
constexpr std::array<CargaHoraria, 4> kCargas = {
    {{"Ocup.Sen.(W/m2)", "Ocupación(%)", "La ocupación sensible", "RatioQS"},
     {"Ocup.Lat.(W/m2)", "Ocup.Lat.(%)", "La ocupación latente", "RatioQL"},
     {"Iluminación(W/m2)", "Iluminación(%)", "La iluminación", "RatioQIlu"},
     {"Equipos(W/m2)", "Equipos(%)", "El uso de equipos", "RatioQEqu"}}};

bool EsValida(const CasillaHoraria& c) {
  return c.clase < kClasesDia && c.hora >= 1 && c.hora <= kHorasDia;
}

// El valor tecleado, si es un número entre los límites de la familia.
std::optional<float> LeerHora(std::string_view texto, const DatosFamilia& datos) {
  double valor = 0;
  if (!LeerReal(texto, valor)) return std::nullopt;
  if (valor < static_cast<double>(datos.minimo) || valor > static_cast<double>(datos.maximo))
    return std::nullopt;
  return RedondearDecimales(static_cast<float>(valor), 2);
}

std::string Limites(const DatosFamilia& datos) {
  const std::string unidad = " " + std::string(datos.unidad);
  return std::string(datos.sujeto) + ", debe estar entre " + General(datos.minimo) + unidad +
         " y " + General(datos.maximo) + unidad;
}

std::vector<std::string_view> Partir(std::string_view texto, char separador) {
  std::vector<std::string_view> partes;
  for (;;) {
    const std::size_t fin = texto.find(separador);
    partes.push_back(texto.substr(0, fin));
    if (fin == std::string_view::npos) return partes;
    texto.remove_prefix(fin + 1);
  }
}

// Nombres de las clases de día que se usan en el año y cumplen algo, unidos.
template <class Condicion>
std::string ClasesCon(const Perfiles& perfiles, Condicion condicion) {
  const auto dias = DiasPorCodigo(perfiles);
  std::string nombres;
  for (std::size_t clase = 0; clase < kClasesDia; ++clase) {
    if (dias[clase + 1] == 0 || !condicion(clase)) continue;
    if (!nombres.empty()) nombres += ", ";
    nombres += kNombresDia[clase + 1];
  }
  return nombres;
}

double SumaDia(const PerfilDiario& perfil) {
  double suma = 0;
  for (std::size_t h = 1; h <= kHorasDia; ++h) suma += static_cast<double>(perfil[h]);
  return suma;
}

void NotasCarga(const DatosGenerales& g, Familia familia, std::vector<std::string>& notas) {
  if (g.EsResidencial()) return;
  const std::array<float, 4> maximos = {g.Sensibleocupantes, g.Latenteocupantes, g.Iluminacion,
                                        g.Equipos};
  const float maximo = maximos.at(familia);
  notas.push_back(maximo > 0.0F
                      ? "El 100 % son " + TextoHora(maximo) + " W/m2"
                      : "El valor máximo del uso es 0 W/m2: este horario no da ninguna carga");
}

void NotasVentilacion(const DatosGenerales& g, const AjustesUso& ajustes,
                      std::vector<std::string>& notas) {
  if (!g.EsResidencial() && ajustes.aire != SistemaAire::Toma && ajustes.PorOcupacion())
    notas.emplace_back(
        "Con la sonda de CO2 la ventilación sigue a la ocupación sensible: este "
        "horario no se usa");
  if (g.EsResidencial() && ajustes.ventanasAbiertas)
    notas.emplace_back(
        "Las noches de verano, de 0 a 7 h, las ventanas están abiertas: 4 "
        "renovaciones por hora, diga lo que diga el horario");
}

void NotasConsigna(const Perfiles& perfiles, const AjustesUso& ajustes, Familia familia,
                   std::vector<std::string>& notas) {
  notas.emplace_back("0 ºC es sin consigna: la temperatura queda libre");
  int meses = 0;
  for (int m = 1; m <= kMeses; ++m)
    meses += (familia == CTCh ? ajustes.Calienta(m) : ajustes.Refrigera(m)) ? 1 : 0;
  if (meses == 0)
    notas.emplace_back(familia == CTCh ? "Ningún mes tiene calefacción: este horario no se usa"
                                       : "Ningún mes tiene refrigeración: este horario no se usa");
  const std::string cruzadas = ClasesCon(perfiles, [&](std::size_t clase) {
    for (std::size_t h = 1; h <= kHorasDia; ++h) {
      const float calor = perfiles.tabla[CTCh][clase][h];
      const float frio = perfiles.tabla[CTRh][clase][h];
      if (frio > 0.0F && calor >= frio) return true;
    }
    return false;
  });
  if (!cruzadas.empty())
    notas.push_back("La consigna de calefacción no es menor que la de refrigeración en: " +
                    cruzadas);
}

}  // namespace

DatosFamilia DatosDeFamilia(Familia familia, bool residencial) {
  if (familia == CTCh)
    return {"Ter.Calef.(ºC)", "ºC", "La consigna de calefacción", 0, kConsignaMaxima};
  if (familia == CTRh)
    return {"Ter.Refrig.(ºC)", "ºC", "La consigna de refrigeración", 0, kConsignaMaxima};
  if (familia == CNR) return {"Ventilación(%)", "%", "La ventilación", 0, 100};
  if (familia == CCAC) return {"Cons.ACS (%/dia)", "%", "El consumo de agua caliente", 0, 100};
  const CargaHoraria& carga = kCargas.at(familia);
  if (!residencial) return {carga.relativa, "%", carga.sujeto, 0, 100};
  const CampoCatalogo* limites = BuscarCampo(carga.clave);
  return {carga.absoluta, "W/m2", carga.sujeto, limites->minimo, limites->maximo};
}

std::string TextoHora(float valor) {
  std::string texto = Fijo(static_cast<double>(valor), 2);
  while (texto.back() == '0') texto.pop_back();
  if (texto.back() == '.') texto.pop_back();
  std::replace(texto.begin(), texto.end(), '.', ',');
  return texto;
}

bool PonerHoras(Edificio& edificio, Familia familia, std::span<const CasillaHoraria> casillas,
                std::string_view texto, Mensajes& mensajes) {
  const DatosFamilia datos = DatosDeFamilia(familia, edificio.GetDatosGenerales().EsResidencial());
  const auto valor = LeerHora(texto, datos);
  if (!valor) {
    mensajes.Avisar("Valor incorrecto", Limites(datos) + ": se deja el valor que había");
    return false;
  }
  CambiarGenerales(edificio, [&](DatosGenerales& g) {
    for (const CasillaHoraria& c : casillas)
      if (EsValida(c)) g.perfiles.tabla[familia][c.clase][c.hora] = *valor;
  });
  return true;
}

int PegarHoras(Edificio& edificio, Familia familia, CasillaHoraria esquina, std::string_view texto,
               Mensajes& mensajes) {
  const DatosFamilia datos = DatosDeFamilia(familia, edificio.GetDatosGenerales().EsResidencial());
  int puestas = 0;
  int rechazadas = 0;
  CambiarGenerales(edificio, [&](DatosGenerales& g) {
    const auto filas = Partir(texto, '\n');
    for (std::size_t f = 0; f < filas.size(); ++f) {
      const auto celdas = Partir(filas[f], '\t');
      for (std::size_t c = 0; c < celdas.size(); ++c) {
        const CasillaHoraria casilla{esquina.clase + f, esquina.hora + c};
        if (!EsValida(casilla) || SinBlancos(celdas[c]).empty()) continue;
        const auto valor = LeerHora(celdas[c], datos);
        if (valor) g.perfiles.tabla[familia][casilla.clase][casilla.hora] = *valor;
        ++(valor ? puestas : rechazadas);
      }
    }
  });
  if (rechazadas > 0)
    mensajes.Avisar("Valor incorrecto", "No se admiten " + std::to_string(rechazadas) +
                                            " de los valores pegados. " + Limites(datos));
  return puestas;
}

void CopiarHorario(Edificio& edificio, std::span<const Familia> familias, std::size_t desde,
                   std::span<const std::size_t> hasta) {
  const auto existe = [](std::size_t clase) { return clase < kClasesDia; };
  if (!existe(desde) || !std::all_of(hasta.begin(), hasta.end(), existe))
    throw std::out_of_range("clase de día");
  CambiarGenerales(edificio, [&](DatosGenerales& g) {
    for (const Familia familia : familias)
      for (const std::size_t clase : hasta)
        g.perfiles.tabla[familia][clase] = g.perfiles.tabla[familia][desde];
  });
}

bool ReponerHorario(Edificio& edificio, Familia familia, const XMLNode& perfilesUso,
                    Mensajes& mensajes) {
  Edificio partida;
  if (!AplicarUsoPorDefecto(perfilesUso, ClaveUsoPorDefecto(edificio.GetDatosGenerales().PerfilUso),
                            partida, mensajes))
    return false;
  CambiarGenerales(edificio, [&](DatosGenerales& g) {
    g.perfiles.tabla[familia] = partida.GetDatosGenerales().perfiles.tabla[familia];
  });
  return true;
}

std::optional<std::size_t> PosicionDia(int mes, int dia) {
  if (mes < 1 || mes > kMeses || dia < 1 || dia > kDiasMes[static_cast<std::size_t>(mes)])
    return std::nullopt;
  const int anteriores = kUltimaHoraMes[static_cast<std::size_t>(mes - 1)] / 24;
  return static_cast<std::size_t>(anteriores + dia - 1);
}

bool PintarDias(Edificio& edificio, std::span<const std::size_t> posiciones, int codigo) {
  if (codigo < 0 || codigo >= static_cast<int>(kCodigosDia)) return false;
  CambiarGenerales(edificio, [&](DatosGenerales& g) {
    for (const std::size_t posicion : posiciones)
      if (posicion < kDiasAno) g.perfiles.calendario[posicion] = codigo;
  });
  return true;
}

std::array<int, kCodigosDia> DiasPorCodigo(const Perfiles& perfiles) {
  std::array<int, kCodigosDia> dias{};
  for (std::size_t d = 0; d < kDiasAno; ++d) {
    const auto codigo = static_cast<std::size_t>(perfiles.calendario[d]);
    if (codigo < kCodigosDia) ++dias[codigo];
  }
  return dias;
}

bool PonerAccionMes(Edificio& edificio, int mes, std::string_view accion) {
  if (mes < 1 || mes > kMeses ||
      std::find(kAccionesMes.begin(), kAccionesMes.end(), accion) == kAccionesMes.end())
    return false;
  CambiarGenerales(edificio, [&](DatosGenerales& g) {
    g.perfiles.AccionMes[static_cast<std::size_t>(mes)] = accion;
  });
  return true;
}

std::vector<std::string> NotasHorario(const Edificio& edificio, Familia familia) {
  std::vector<std::string> notas;
  const DatosGenerales& g = edificio.GetDatosGenerales();
  const AjustesUso ajustes = ResolverAjustes(edificio);
  if (familia <= CEq) NotasCarga(g, familia, notas);
  if (familia == CNR) NotasVentilacion(g, ajustes, notas);
  if (familia == CTCh || familia == CTRh) NotasConsigna(g.perfiles, ajustes, familia, notas);
  if (familia == CCAC) {
    const std::string mal = ClasesCon(g.perfiles, [&](std::size_t clase) {
      const double suma = SumaDia(g.perfiles.tabla[CCAC][clase]);
      return suma > 0 && std::abs(suma - 100) > kMargenReparto;
    });
    if (!mal.empty()) notas.push_back("El reparto del día no suma 100 % en: " + mal);
  }
  return notas;
}

SerieHoraria SerieDeHorario(const Edificio& edificio, Familia familia) {
  SeriesCarga carga;
  GenerarCargas(edificio.GetDatosGenerales(), ResolverAjustes(edificio), carga);
  const std::array<SerieHoraria*, kFamilias> series = {&carga.QOCUPSh, &carga.latente, &carga.QILUh,
                                                       &carga.QEQh,    &carga.TCR,     &carga.TRR,
                                                       &carga.NRR,     &carga.CCAC};
  return std::move(*series.at(familia));
}

}  // namespace novex
