#include "entry/SupuestosExpres.h"

#include <algorithm>
#include <cmath>

#include "base/NumeroTexto.h"
#include "entry/ListasSistemas.h"

namespace novex {
namespace {

constexpr double kAltura = 2.7;             // m, de suelo a techo con su parte de forjado
constexpr double kSuperficieVivienda = 90;  // m2 por vivienda de un bloque
constexpr double kLadoVentana = 1.2;        // m
constexpr double kParteVentanas = 0.2;      // de la fachada
constexpr int kUnifamiliar = 0;
constexpr int kBloque = 1;
constexpr int kPiso = 2;

struct Forma {
  int plantas;
  double proporcion;  // ancho de la fachada norte entre el de la oeste
  bool entreMedianeras;
};
Forma FormaDe(int perfil) {
  if (perfil == kUnifamiliar) return {2, 1, false};
  if (perfil == kBloque) return {4, 2, false};
  if (perfil == kPiso) return {1, 1.5, true};
  return {2, 2, false};
}

double Numero(const std::string& texto) {
  double valor = 0;
  return LeerReal(texto, valor) ? valor : 0.0;
}

// Completa textos y va apuntando lo que supone.
class Completador {
 public:
  std::vector<std::string> lineas;

  void Dar(std::string& texto, double valor, int decimales, const std::string& que,
           const std::string& razon) {
    if (!texto.empty()) return;
    texto = Fijo(valor, decimales);
    lineas.push_back(que + ": " + texto + " (" + razon + ")");
  }
  void Anotar(const std::string& que, const std::string& valor, const std::string& razon) {
    lineas.push_back(que + ": " + valor + " (" + razon + ")");
  }
};

constexpr std::array<const char*, kSectores> kNombres = {"norte", "oeste",   "suroeste",
                                                         "sur",   "sureste", "este"};

void CompletarCifras(Completador& c, SupuestosExpres& s, int perfil) {
  EntradaExpres& e = s.entrada;
  const double superficie = Numero(e.superficie);
  c.Dar(e.volumen, superficie * kAltura, 1, "Volumen total, m3", "2,70 m por planta");
  if (perfil == kBloque || perfil == kPiso)
    c.Dar(e.viviendas,
          perfil == kBloque ? std::max(2.0, std::round(superficie / kSuperficieVivienda)) : 10, 0,
          "Viviendas del bloque", perfil == kBloque ? "una por cada 90 m2" : "las de partida");
  else
    c.Dar(e.viviendas, 1, 0, "Viviendas", "una");
  if (perfil <= kPiso) {
    c.Dar(e.dormitorios, 3, 0, "Dormitorios por vivienda", "los de partida");
    c.Dar(e.banos, 1, 0, "Cuartos de baño por vivienda", "los de partida");
    c.Dar(e.ventilacion, 0.63, 2, "Ventilación, renovaciones/h", "sin datos se usa 0,63");
  }
}

void CompletarFachadas(Completador& c, SupuestosExpres& s, const Forma& forma, double planta) {
  EntradaExpres& e = s.entrada;
  const double superficie = Numero(e.superficie);
  const double altura = superficie > 0 ? Numero(e.volumen) / superficie * s.plantas : 0;
  const double fondo = std::sqrt(planta / forma.proporcion);
  const double ancho = planta > 0 ? planta / fondo : 0;
  const std::string medidas = "planta de " + Fijo(ancho, 1) + " x " + Fijo(fondo, 1) + " m y " +
                              Fijo(altura, 1) + " m de alto";
  for (std::size_t sector = 0; sector < kSectores; ++sector) {
    const bool larga = sector == norte || sector == sur;
    const bool corta = sector == oeste || sector == este;
    const double lado = larga ? ancho : corta && !forma.entreMedianeras ? fondo : 0;
    if (lado > 0)
      c.Dar(e.fachada[sector], lado * altura, 1,
            std::string("Fachada ") + kNombres[sector] + ", m2", medidas);
  }
  if (forma.entreMedianeras)
    c.Dar(e.medianeras, 2 * fondo * altura, 1, "Medianeras, m2", "los dos lados, " + medidas);
}

void CompletarHorizontales(Completador& c, SupuestosExpres& s, const Forma& forma, double planta) {
  EntradaExpres& e = s.entrada;
  const std::string razon = forma.entreMedianeras ? "la de la vivienda" : "la de una planta";
  c.Dar(e.cubierta, planta, 1, "Cubierta, m2", razon);
  c.Dar(e.suelo, planta, 1, "Suelo, m2", razon);
  const bool entrePisos = forma.entreMedianeras;
  if (!s.conTipoCubierta) {
    e.tipoCubierta = entrePisos ? CubiertaExpres::ALocalAcondicionado : CubiertaExpres::AlExterior;
    c.Anotar("Cubierta", std::string(kCubiertasExpres[static_cast<std::size_t>(e.tipoCubierta)]),
             entrePisos ? "piso intermedio" : "edificio exento");
  }
  if (!s.conTipoSuelo) {
    e.tipoSuelo = entrePisos ? SueloExpres::ALocalAcondicionado : SueloExpres::AlTerreno;
    c.Anotar("Suelo", std::string(kSuelosExpres[static_cast<std::size_t>(e.tipoSuelo)]),
             entrePisos ? "piso intermedio" : "edificio exento");
  }
}

// Ventanas que cubren la parte supuesta de un sector, redondeadas, y al menos una si hay fachada.
int VentanasDe(double fachada) {
  if (fachada <= 0) return 0;
  const double n = kParteVentanas * fachada / (kLadoVentana * kLadoVentana);
  return std::max(fachada > 2 * kLadoVentana * kLadoVentana ? 1 : 0,
                  static_cast<int>(std::lround(n)));
}

void CompletarVentanas(Completador& c, SupuestosExpres& s, int perfil) {
  if (s.conVidrios) return;
  EntradaExpres& e = s.entrada;
  GrupoExpres grupo;
  grupo.ancho = grupo.alto = Fijo(kLadoVentana, 2);
  grupo.vidrio = e.periodo == "Antes_1979" ? VidrioExpres::Sencillo : VidrioExpres::Doble;
  if (perfil <= kPiso) grupo.proteccion = ProteccionExpres::Persiana;
  std::string texto;
  for (std::size_t sector = 0; sector < kSectores; ++sector) {
    const int n = VentanasDe(Numero(e.fachada[sector]));
    grupo.unidades[sector] = std::to_string(n);
    if (n > 0) texto += std::to_string(n) + " al " + kNombres[sector] + ", ";
  }
  texto += "de 1,20 x 1,20 m, " +
           std::string(kVidriosExpres[static_cast<std::size_t>(grupo.vidrio)]) + ", protección " +
           std::string(kProteccionesExpres[static_cast<std::size_t>(grupo.proteccion)]);
  c.Anotar("Ventanas", texto, "un quinto de cada fachada; vidrio por la época");
  e.vidrios = {std::move(grupo)};
}

void CompletarPuerta(Completador& c, SupuestosExpres& s, int perfil) {
  if (s.conPuerta) return;
  EntradaExpres& e = s.entrada;
  const bool unifamiliar = perfil == kUnifamiliar;
  e.puerta = unifamiliar ? PuertaExpres::Madera : PuertaExpres::Metalica;
  e.anchoPuerta = unifamiliar ? "0.90" : "1.60";
  e.altoPuerta = "2.10";
  if (perfil == kPiso) {
    c.Anotar("Puerta", "ninguna al exterior", "la de un piso da a la escalera");
    return;
  }
  // La entrada va a la fachada mayor; a igualdad, a la primera.
  std::size_t sector = 0;
  for (std::size_t i = 1; i < kSectores; ++i)
    if (Numero(e.fachada[i]) > Numero(e.fachada[sector])) sector = i;
  e.puertas[sector] = "1";
  c.Anotar("Puerta",
           std::string("1 al ") + kNombres[sector] + ", de " + e.anchoPuerta + " x " +
               e.altoPuerta + " m, " +
               std::string(kPuertasExpres[static_cast<std::size_t>(e.puerta)]),
           "la de entrada, en la fachada mayor");
}

}  // namespace

std::vector<std::string> CompletarExpres(SupuestosExpres& s, int perfilUso) {
  Completador c;
  const Forma forma = FormaDe(perfilUso);
  if (s.plantas <= 0) {
    s.plantas = forma.plantas;
    c.Anotar("Plantas", std::to_string(s.plantas), "las de su uso");
  }
  CompletarCifras(c, s, perfilUso);
  const double planta = Numero(s.entrada.superficie) / s.plantas;
  CompletarFachadas(c, s, forma, planta);
  CompletarHorizontales(c, s, forma, planta);
  CompletarVentanas(c, s, perfilUso);
  CompletarPuerta(c, s, perfilUso);
  if (!s.conInstalacion) {
    s.entrada.instalacion = InstalacionesExpres(perfilUso, s.entrada.colectiva).front();
    c.Anotar("Agua caliente", s.entrada.instalacion, "la primera de su lista");
  }
  return c.lineas;
}

}  // namespace novex
