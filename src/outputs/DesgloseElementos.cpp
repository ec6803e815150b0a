#include "outputs/DesgloseElementos.h"

#include <algorithm>
#include <map>
#include <string_view>
#include <utility>

namespace novex {
namespace {

struct Familia {
  const char* familia;
  const char* rotulo;
};
constexpr std::array<Familia, 5> kFamilias = {{{"Opacos", "Opacos"},
                                               {"SemiTransp.", "Semitransp."},
                                               {"Ventilacion", "Renov. aire"},
                                               {"PuentesT", "Puentes T."},
                                               {"CargaInterna", "CargaInterna"}}};
// Las que se llevan a la demanda; la carga interna queda como sale.
constexpr std::size_t kFamiliasDemanda = 4;

constexpr std::array<const char*, 7> kOrientaciones = {"NORTE",    "ESTE",  "SURESTE",   "SUR",
                                                       "SUROESTE", "OESTE", "HORIZONTAL"};

constexpr std::pair<std::string_view, const char*> kSiglas[] = {{"NORTE", "N"},     {"ESTE", "E"},
                                                                {"SURESTE", "SE"},  {"SUR", "S"},
                                                                {"SUROESTE", "SO"}, {"OESTE", "O"}};

const char* Sigla(std::string_view orientacion) {
  for (const auto& [nombre, sigla] : kSiglas)
    if (nombre == orientacion) return sigla;
  return "";
}

using Elementos = std::vector<const Valores*>;

// Suma de un grupo en las horas con demanda, solo cuando el grupo la hace, en Wh con su signo.
struct Sumador {
  const SerieHoraria& demanda;
  bool calor;

  double operator()(const Elementos& elementos) const {
    double suma = 0;
    for (int h = 1; h <= kHorasAno; ++h) {
      if (calor ? demanda[h] >= 0.0F : demanda[h] <= 0.0F) continue;
      double hora = 0;
      for (const Valores* v : elementos) hora += static_cast<double>(v->valor[h]);
      if (calor ? hora < 0.0 : hora > 0.0) suma += hora;
    }
    return suma;
  }
};

template <class Filtro>
Elementos Elegir(const calculo& caso, Filtro filtro) {
  Elementos elegidos;
  for (const auto& [clave, v] : caso.valores)
    if (filtro(v)) elegidos.push_back(&v);
  return elegidos;
}

Elementos DeFamilia(const calculo& caso, std::string_view familia) {
  return Elegir(caso, [familia](const Valores& v) { return v.familia == familia; });
}

double Suma(const std::vector<BarraDesglose>& barras, std::size_t cuantas) {
  double suma = 0;
  for (std::size_t i = 0; i < std::min(cuantas, barras.size()); ++i) suma += barras[i].valor;
  return suma;
}

// Lleva las `cuantas` primeras barras a que sumen `total`, si suman algo.
void Repartir(std::vector<BarraDesglose>& barras, std::size_t cuantas, double total) {
  const double suma = Suma(barras, cuantas);
  if (suma == 0.0) return;
  for (std::size_t i = 0; i < std::min(cuantas, barras.size()); ++i)
    barras[i].valor *= total / suma;
}

}  // namespace

std::string CodigoElemento(const Valores& v) {
  // El nombre acaba en el tipo: "Muro1".
  const std::size_t cifra = v.nombre.find_last_not_of("0123456789");
  const std::size_t corte = cifra == std::string::npos ? 0 : cifra + 1;
  const std::string_view clase = std::string_view(v.nombre).substr(0, corte);
  const std::string tipo = v.nombre.substr(corte);
  const std::string sigla = Sigla(v.orientacion);
  if (v.grupo == "Muros") {
    if (clase == "Muro") return "M.(" + tipo + "). " + sigla;
    if (clase == "LocalNoHab") return "M.a no aco" + tipo + ".";
    if (clase == "Terreno") return "M. enterrado" + tipo;
  } else if (v.grupo == "Cubiertas") {
    if (clase == "HzExt") return "C.Hz.Sol" + tipo;
    if (clase == "Incli") return "C.incl.30º" + sigla + tipo;
    if (clase == "Buhardilla") return "C.a no aco" + tipo + ".";
    if (clase == "Terreno") return "C. enterrada" + tipo;
  } else if (v.grupo == "Suelos") {
    if (clase == "Exterior") return "S. exterior" + tipo;
    if (clase == "LocalNoHab") return "S.a no aco" + tipo + ".";
    if (clase == "VacioSanitario") return "S.vacio s" + tipo + ".";
    if (clase == "Terreno") return "S. enterrado" + tipo;
  }
  return v.nombre;
}

DesgloseServicio DesglosarServicio(const calculo& caso, Servicio servicio, float superficie) {
  const bool calor = servicio == kCalefaccion;
  const Sumador sumar{calor ? caso.zona.DCAL : caso.zona.DREF, calor};
  // De Wh a kWh/m2, y en calefacción con el signo cambiado.
  const double factor =
      superficie > 0.0F ? (calor ? -0.001 : 0.001) / static_cast<double>(superficie) : 0.0;
  const auto barra = [&](std::string rotulo, const Elementos& elementos) {
    // Sumar 0 quita el cero negativo.
    return BarraDesglose{std::move(rotulo), factor * sumar(elementos) + 0.0};
  };
  DesgloseServicio d;
  for (const Familia& f : kFamilias)
    d.familias.push_back(barra(f.rotulo, DeFamilia(caso, f.familia)));
  const ResultadosCaso& r = caso.resultados;
  const float demanda = calor ? r.demandaCalefaccion : r.demandaRefrigeracion;
  if (superficie > 0.0F) Repartir(d.familias, kFamiliasDemanda, static_cast<double>(demanda));

  for (const Valores* v : DeFamilia(caso, kFamilias[0].familia))
    d.opacos.push_back(barra(CodigoElemento(*v), {v}));
  const Elementos huecos = DeFamilia(caso, kFamilias[1].familia);
  const auto huecosDe = [&](auto filtro) {
    Elementos elegidos;
    std::copy_if(huecos.begin(), huecos.end(), std::back_inserter(elegidos), filtro);
    return elegidos;
  };
  std::map<std::pair<std::size_t, std::string>, Elementos> grupos;  // el 10 va detrás del 2
  for (const Valores* v : huecos) grupos[{v->nombre.size(), v->nombre}].push_back(v);
  for (const auto& [clave, elementos] : grupos)
    d.gruposHuecos.push_back(barra("H-" + clave.second, elementos));
  for (const char* o : kOrientaciones)
    d.orientacionHuecos.push_back(barra(
        std::string("H-") + o, huecosDe([o](const Valores* v) { return v->orientacion == o; })));

  constexpr auto kTodas = static_cast<std::size_t>(-1);
  Repartir(d.opacos, kTodas, d.familias[0].valor);
  Repartir(d.gruposHuecos, kTodas, d.familias[1].valor);
  Repartir(d.orientacionHuecos, kTodas, d.familias[1].valor);
  return d;
}

}  // namespace novex
