#include "demand/FicheroMet.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <span>

#include "base/ErrorFichero.h"
#include "base/NumeroTexto.h"
#include "base/Texto.h"
#include "demand/PosicionSolar.h"

namespace novex {
namespace {

constexpr int kLineasMet = kHorasAno + 2;
constexpr std::size_t kCamposLeidos = 10;
constexpr std::size_t kMaximoFaltas = 20;

// Tabuladores, blancos y el CR del final: en estas líneas no hay otros caracteres de código tan
// bajo.
constexpr bool EsSeparador(char c) {
  return static_cast<unsigned char>(c) <= ' ';
}

// Separa la primera línea de lo que queda por leer.
std::string_view TomarLinea(std::string_view& resto) {
  const std::size_t fin = resto.find('\n');
  const std::string_view linea = resto.substr(0, fin);
  resto.remove_prefix(fin == std::string_view::npos ? resto.size() : fin + 1);
  return linea;
}

bool LeerFloat(std::string_view texto, float& valor) {
  double real = 0;
  if (!LeerReal(texto, real) || std::fabs(real) > std::numeric_limits<float>::max()) return false;
  valor = static_cast<float>(real);
  return true;
}

// Recorre una línea de atrás hacia delante, que es como se cuentan sus columnas. Leer un año son
// 70000 números: los decimales cortos, que son casi todos, se componen al paso, y los demás van a
// LeerReal.
class LineaAlReves {
 public:
  explicit LineaAlReves(std::string_view linea)
      : principio_(linea.data()), cursor_(linea.data() + linea.size()) {}

  /// Se pone al final del campo siguiente; false si no quedan.
  bool Avanzar() {
    while (cursor_ != principio_ && EsSeparador(cursor_[-1])) --cursor_;
    return cursor_ != principio_;
  }

  std::string_view TomarCampo() {
    const char* fin = cursor_;
    while (cursor_ != principio_ && !EsSeparador(cursor_[-1])) --cursor_;
    return {cursor_, static_cast<std::size_t>(fin - cursor_)};
  }

  bool TomarNumero(float& valor) {
    const char* p = cursor_;
    const char* punto = nullptr;
    // Con demasiadas cifras da la vuelta, y entonces no se usa.
    std::uint64_t entero = 0;
    std::uint64_t peso = 1;
    for (; p != principio_; --p) {
      const auto cifra = static_cast<unsigned>(p[-1]) - unsigned{'0'};
      if (cifra <= 9) {
        entero += cifra * peso;
        peso *= 10;
      } else if (p[-1] == '.' && punto == nullptr) {
        punto = p;
      } else {
        break;
      }
    }
    const auto leidos = static_cast<std::size_t>(cursor_ - p);
    const auto decimales = punto == nullptr ? 0 : static_cast<std::size_t>(cursor_ - punto);
    bool corto = peso > 1 && leidos < kPotencia.size();
    bool negativo = false;
    if (p != principio_ && !EsSeparador(p[-1])) {
      negativo = *--p == '-';
      corto = corto && negativo && (p == principio_ || EsSeparador(p[-1]));
    }
    if (!corto) return LeerFloat(TomarCampo(), valor);
    const double real =
        static_cast<double>(static_cast<std::int64_t>(entero)) / kPotencia[decimales];
    valor = static_cast<float>(negativo ? -real : real);
    cursor_ = p;
    return true;
  }

 private:
  static constexpr std::array<double, 13> kPotencia = {1,   1e1, 1e2, 1e3,  1e4,  1e5, 1e6,
                                                       1e7, 1e8, 1e9, 1e10, 1e11, 1e12};

  const char* principio_;
  const char* cursor_;
};

[[noreturn]] void Fallar(const std::string& ruta, int linea, const std::string& motivo) {
  const std::string donde = ruta.empty() ? "fichero .met" : ruta;
  throw ErrorFichero(ruta, 0, linea, 0, donde + ", línea " + std::to_string(linea) + ": " + motivo);
}

void LeerLugar(std::string_view linea, FicheroMet& fichero, const std::string& ruta) {
  // Se cuentan desde el principio: los cuatro últimos de los que haya no tienen por qué ser estos.
  std::array<std::string_view, 4> campos;
  std::size_t cuantos = 0;
  std::size_t i = 0;
  while (cuantos < campos.size()) {
    while (i < linea.size() && EsSeparador(linea[i])) ++i;
    if (i == linea.size()) break;
    const std::size_t inicio = i;
    while (i < linea.size() && !EsSeparador(linea[i])) ++i;
    campos[cuantos++] = linea.substr(inicio, i - inicio);
  }
  if (cuantos < campos.size()) return;
  const std::array<float*, 4> destinos = {&fichero.latitud, &fichero.longitud, &fichero.altitud,
                                          &fichero.meridiano};
  for (std::size_t k = 0; k < campos.size(); ++k)
    if (!LeerFloat(campos[k], *destinos[k]))
      Fallar(ruta, 2, "el campo " + std::to_string(k + 1) + " no es un número");
  fichero.hayCabecera = true;
}

// Columnas desde el final; nullptr en las del viento, que no se leen.
constexpr std::array<float RegistroMet::*, kCamposLeidos> kColumnas = {
    &RegistroMet::cenit,
    &RegistroMet::acimut,
    nullptr,
    nullptr,
    &RegistroMet::humedadRelativa,
    &RegistroMet::humedadAbsoluta,
    &RegistroMet::difusa,
    &RegistroMet::directaHorizontal,
    &RegistroMet::cielo,
    &RegistroMet::seca};

RegistroMet LeerHora(std::string_view texto, int numeroLinea, const std::string& ruta) {
  RegistroMet hora;
  LineaAlReves linea(texto);
  for (std::size_t k = 0; k < kColumnas.size(); ++k) {
    if (!linea.Avanzar())
      Fallar(ruta, numeroLinea,
             "tiene " + std::to_string(k) + " campos y hacen falta al menos " +
                 std::to_string(kCamposLeidos));
    if (kColumnas[k] == nullptr)
      linea.TomarCampo();
    else if (!linea.TomarNumero(hora.*kColumnas[k]))
      Fallar(ruta, numeroLinea,
             "el campo " + std::to_string(k + 1) + " desde el final no es un número");
  }
  return hora;
}

// Lista de faltas que deja de crecer al llegar a un tope: un fichero de otra clase tendría miles.
class Faltas {
 public:
  void Anadir(std::string texto) {
    if (textos_.size() < kMaximoFaltas) textos_.push_back(std::move(texto));
  }
  void AnadirEnLinea(std::size_t indice, const std::string& texto) {
    Anadir("línea " + std::to_string(indice + 3) + ": " + texto);
  }
  std::vector<std::string> Tomar() { return std::move(textos_); }

 private:
  std::vector<std::string> textos_;
};

struct Margen {
  float RegistroMet::*campo;
  const char* nombre;
  float minimo;
  float maximo;
};

constexpr std::array<Margen, 8> kMargenes = {{
    {&RegistroMet::seca, "temperatura seca", -40, 55},
    {&RegistroMet::cielo, "temperatura del cielo", -70, 50},
    {&RegistroMet::directaHorizontal, "radiación directa", 0, 1400},
    {&RegistroMet::difusa, "radiación difusa", 0, 900},
    {&RegistroMet::humedadAbsoluta, "humedad absoluta", 0, 0.04F},
    {&RegistroMet::humedadRelativa, "humedad relativa", 0, 100},
    {&RegistroMet::acimut, "acimut", -180, 180},
    {&RegistroMet::cenit, "cenit", 0, 180},
}};

void ComprobarHora(const RegistroMet& hora, std::size_t indice, Faltas& faltas) {
  for (const Margen& margen : kMargenes) {
    const float valor = hora.*margen.campo;
    if (valor < margen.minimo || valor > margen.maximo)
      faltas.AnadirEnLinea(
          indice, std::string(margen.nombre) + " fuera de margen (" + General(valor) + ")");
  }
  if (hora.cenit >= 90 && hora.directaHorizontal > 0)
    faltas.AnadirEnLinea(indice, "radiación directa con el sol bajo el horizonte");
  if (hora.cenit >= 90 && hora.difusa > 20)
    faltas.AnadirEnLinea(indice, "radiación difusa con el sol bajo el horizonte");
  if (hora.cielo > hora.seca + 5) faltas.AnadirEnLinea(indice, "cielo más caliente que el aire");
}

// Con otra hora que la solar, otro sentido del acimut u otra latitud, la posición no cuadra.
void ComprobarSol(const FicheroMet& fichero, Faltas& faltas) {
  double diferenciaCenit = 0;
  double diferenciaAcimut = 0;
  double extraterrestre = 0;
  double global = 0;
  int horasDeSol = 0;
  int horasOscuras = 0;
  for (int h = 1; h <= kHorasAno; ++h) {
    const RegistroMet& hora = fichero.horas[static_cast<std::size_t>(h - 1)];
    const PosicionSolar sol =
        CalcularPosicionSolar(static_cast<double>(fichero.latitud), DiaDelAno(h), HoraDelDia(h));
    global += static_cast<double>(hora.directaHorizontal + hora.difusa);
    extraterrestre += kConstanteSolar * sol.cosenoCenit;
    if (sol.cenit > 80) continue;
    ++horasDeSol;
    diferenciaCenit += std::fabs(static_cast<double>(hora.cenit) - sol.cenit);
    if (sol.cenit > 20)
      diferenciaAcimut += std::fabs(static_cast<double>(hora.acimut) - sol.acimut);
    if (hora.directaHorizontal + hora.difusa <= 0) ++horasOscuras;
  }
  if (horasDeSol == 0) return faltas.Anadir("la latitud no deja horas de sol");
  if (diferenciaCenit / horasDeSol > 3)
    faltas.Anadir("el cenit no es el de la latitud del fichero en hora solar");
  if (diferenciaAcimut / horasDeSol > 8)
    faltas.Anadir("el acimut no es el de la latitud del fichero en hora solar");
  if (horasOscuras > horasDeSol / 50) faltas.Anadir("faltan horas de radiación con el sol alto");
  const double claridad = global / extraterrestre;
  if (claridad < 0.2 || claridad > 0.8)
    faltas.Anadir("la radiación del año es " + Fijo(100 * claridad, 0) +
                  " % de la que llega a la atmósfera");
}

}  // namespace

FicheroMet LeerMet(std::string_view contenido, const std::string& ruta) {
  FicheroMet fichero;
  std::string_view resto = contenido;
  if (resto.substr(0, 3) == "\xEF\xBB\xBF") resto.remove_prefix(3);
  fichero.titulo = AUtf8(SinBlancos(TomarLinea(resto)));
  LeerLugar(TomarLinea(resto), fichero, ruta);
  fichero.horas.reserve(static_cast<std::size_t>(kHorasAno));
  for (int linea = 3; linea <= kLineasMet; ++linea) {
    if (resto.empty())
      Fallar(ruta, linea, "faltan líneas de hora: hay " + std::to_string(linea - 3) + " de 8760");
    fichero.horas.push_back(LeerHora(TomarLinea(resto), linea, ruta));
  }
  return fichero;
}

std::vector<std::string> ComprobarMet(std::string_view contenido) {
  FicheroMet fichero;
  try {
    fichero = LeerMet(contenido);
  } catch (const ErrorFichero& error) {
    return {error.what()};
  }
  Faltas faltas;
  std::string_view resto = contenido;
  for (int linea = 1; linea <= kLineasMet; ++linea) TomarLinea(resto);
  if (!SinBlancos(resto).empty()) faltas.Anadir("sobran líneas tras la 8762");
  for (std::size_t i = 0; i < fichero.horas.size(); ++i) ComprobarHora(fichero.horas[i], i, faltas);
  if (!fichero.hayCabecera)
    faltas.Anadir("línea 2: faltan latitud, longitud, altitud o meridiano");
  else if (std::fabs(fichero.latitud) > 66)
    faltas.Anadir("línea 2: latitud fuera de margen (" + General(fichero.latitud) + ")");
  else
    ComprobarSol(fichero, faltas);
  return faltas.Tomar();
}

namespace {

FilaResumenMet ResumirHoras(std::span<const RegistroMet> horas) {
  double seca = 0;
  double humedad = 0;
  double directa = 0;
  double difusa = 0;
  double depresion = 0;
  FilaResumenMet fila;
  fila.minimaSeca = horas.front().seca;
  fila.maximaSeca = horas.front().seca;
  for (const RegistroMet& hora : horas) {
    fila.minimaSeca = std::min(fila.minimaSeca, hora.seca);
    fila.maximaSeca = std::max(fila.maximaSeca, hora.seca);
    seca += static_cast<double>(hora.seca);
    humedad += static_cast<double>(hora.humedadRelativa);
    directa += static_cast<double>(hora.directaHorizontal);
    difusa += static_cast<double>(hora.difusa);
    depresion += static_cast<double>(hora.seca) - static_cast<double>(hora.cielo);
  }
  const double n = static_cast<double>(horas.size());
  fila.mediaSeca = static_cast<float>(seca / n);
  fila.humedadRelativa = static_cast<float>(humedad / n);
  fila.directa = static_cast<float>(directa / 1000);
  fila.difusa = static_cast<float>(difusa / 1000);
  fila.global = static_cast<float>((directa + difusa) / 1000);
  fila.depresionCielo = static_cast<float>(depresion / n);
  return fila;
}

}  // namespace

ResumenMensualMet ResumirMet(const FicheroMet& fichero) {
  if (fichero.horas.size() != static_cast<std::size_t>(kHorasAno))
    throw std::logic_error("ResumirMet: hacen falta 8760 horas");
  const std::span<const RegistroMet> horas(fichero.horas);
  ResumenMensualMet resumen;
  for (std::size_t m = 1; m <= static_cast<std::size_t>(kMeses); ++m) {
    const auto inicio = static_cast<std::size_t>(kUltimaHoraMes[m - 1]);
    const auto fin = static_cast<std::size_t>(kUltimaHoraMes[m]);
    resumen.meses[m - 1] = ResumirHoras(horas.subspan(inicio, fin - inicio));
  }
  resumen.ano = ResumirHoras(horas);
  return resumen;
}

}  // namespace novex
