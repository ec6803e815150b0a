#include "entry/CreacionSistema.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "entry/BloqueSistema.h"
#include "entry/DimensionadoSistema.h"
#include "entry/ListasSistemas.h"
#include "systems/ClasesSistema.h"

namespace novex {
namespace {

using T = TipoSistema;

constexpr const char* kTituloAviso = "AVISO";

// Lo que ya hay en un caso.
struct Existentes {
  bool calefaccion = false, refrigeracion = false;
  bool calefaccionCentral = false, refrigeracionCentral = false, acsCentral = false;
  bool calefaccionEstacional = false, refrigeracionEstacional = false;
};

Existentes MirarExistentes(const Edificio& edificio) {
  Existentes e;
  for (std::size_t s = 0; s < edificio.NumeroSistemas(); ++s) {
    const SistemaResidencial& sistema = edificio.GetSistema(s);
    if (sistema.instalaciones.empty()) continue;
    const Instalaciones& primero = sistema.instalaciones.front();
    const T tipo = TipoSistemaDe(sistema.Tipo_sistema);
    const bool central = primero.TipoInstalacionesG == kCentralizada;
    // El rendimiento estacional conocido con agua caliente no cuenta como equipo único.
    const bool estacional = !DaACS(tipo) && EsClaseEstacional(primero.Seleccion);
    e.calefaccion |= DaCalefaccion(tipo);
    e.refrigeracion |= DaRefrigeracion(tipo);
    e.calefaccionCentral |= DaCalefaccion(tipo) && central;
    e.refrigeracionCentral |= DaRefrigeracion(tipo) && central;
    e.acsCentral |= DaACS(tipo) && central;
    e.calefaccionEstacional |= DaCalefaccion(tipo) && estacional;
    e.refrigeracionEstacional |= DaRefrigeracion(tipo) && estacional;
  }
  return e;
}

struct Nuevo {
  T tipo;
  bool estacional, central;
};

struct Regla {
  bool (*rechaza)(const Existentes&, const Nuevo&);
  const char* texto;
};

bool CalientaZona(T t) {
  return t == T::CaleRefri || t == T::Calefaccion || t == T::ACSCalefaccion;
}
bool EnfriaZona(T t) {
  return t == T::CaleRefri || t == T::Refrigeracion;
}

// En el orden en que se prueban.
constexpr std::array kReglas = std::to_array<Regla>({
    {[](const Existentes& e, const Nuevo& n) {
       return n.tipo == T::Refrigeracion && e.refrigeracion && n.estacional;
     },
     "Ya existe un equipo de refrigeración, no se puede añadir un equipo de rendimiento conocido "
     "para refrigeración. No se construye el sistema"},
    {[](const Existentes& e, const Nuevo& n) {
       return n.tipo == T::Calefaccion && e.calefaccion && n.estacional;
     },
     "Ya existe un equipo de calefacción, no se puede añadir un equipo de rendimiento conocido "
     "para calefacción. No se construye el sistema"},
    {[](const Existentes& e, const Nuevo& n) {
       return n.tipo == T::CaleRefri && (e.calefaccion || e.refrigeracion) && n.estacional;
     },
     "Ya existe un equipo de calefacción/refrigeración, no se puede añadir un equipo de "
     "rendimiento conocido para calefacción/refrigeración. No se construye el sistema"},
    // El agua caliente con calefacción también calienta la zona junto al equipo único.
    {[](const Existentes& e, const Nuevo& n) {
       return (n.tipo == T::Calefaccion || n.tipo == T::ACSCalefaccion) && e.calefaccionEstacional;
     },
     "Ya existe un único equipo de rendimiento conocido para calefacción. No se construye el "
     "sistema"},
    {[](const Existentes& e, const Nuevo& n) {
       return n.tipo == T::Refrigeracion && e.refrigeracionEstacional;
     },
     "Ya existe un único equipo de rendimiento conocido para refrigeración. No se construye el "
     "sistema"},
    {[](const Existentes& e, const Nuevo& n) {
       return n.tipo == T::CaleRefri && (e.calefaccionEstacional || e.refrigeracionEstacional);
     },
     "Ya existe un único equipo de rendimiento conocido para refrigeración y/o calefacción. No se "
     "construye el sistema"},
    {[](const Existentes& e, const Nuevo& n) {
       return (n.tipo == T::ACS || n.tipo == T::ACSCalefaccion) && e.acsCentral;
     },
     "Sólo se permite una tipología de equipos de ACS centralizado en el edificio. No se construye "
     "el sistema"},
    {[](const Existentes& e, const Nuevo& n) {
       return CalientaZona(n.tipo) && e.calefaccionCentral;
     },
     "Ya existe una instalación centralizada de calefacción. No se construye el sistema"},
    {[](const Existentes& e, const Nuevo& n) {
       return CalientaZona(n.tipo) && n.central && e.calefaccion;
     },
     "Ya existe una instalación individual de calefacción, no tiene sentido añadir una instalacion "
     "centralizada de calefacción. No se construye el sistema"},
    {[](const Existentes& e, const Nuevo& n) {
       return EnfriaZona(n.tipo) && e.refrigeracionCentral;
     },
     "Ya existe una instalación centralizada de refrigeración. No se construye el sistema"},
    {[](const Existentes& e, const Nuevo& n) {
       return EnfriaZona(n.tipo) && n.central && e.refrigeracion;
     },
     "Ya existe una instalación individual de refrigeración, no tiene sentido añadir una "
     "instalacion centralizada de refrigeración. No se construye el sistema"},
});

Mensaje NoSeOfrece(const std::string& valor, std::string_view para) {
  return {kTituloAviso, "No se ofrece \"" + valor + "\" para " + std::string(para) +
                            ". No se construye el sistema"};
}

// Elecciones que las listas no dan.
std::optional<Mensaje> RechazoElecciones(const PeticionSistema& p) {
  const auto ofrecidos = kServiciosSistema.begin() + kServiciosOfrecidos;
  if (std::none_of(kServiciosSistema.begin(), ofrecidos,
                   [&p](const ServicioSistema& s) { return s.tipoSistema == p.tipoSistema; }))
    return NoSeOfrece(p.tipoSistema, "un sistema nuevo");
  const ListaTextos clases = ClasesOfrecidas(p.tipoSistema, p.tipologia);
  if (clases.empty()) return NoSeOfrece(p.tipologia, "la tipología de la instalación");
  if (!EstaEn(clases, p.seleccion))
    return NoSeOfrece(p.seleccion,
                      std::string(RotuloServicio(p.tipoSistema)) + ", instalación " + p.tipologia);
  struct Eleccion {
    const std::string& valor;
    ListaTextos lista;
  };
  const Eleccion elecciones[] = {
      {p.emisor, EmisoresOfrecidos(p.tipoSistema, p.seleccion)},
      {p.tipoBC1, kTiposBC},
      {p.distribucion, DistribucionesOfrecidas(p.tipoSistema, p.seleccion)},
      {p.distribucion2, Distribuciones2Ofrecidas(p.tipoSistema, p.seleccion)}};
  // Lo que la clase no usa no se comprueba: la pantalla puede traer lo elegido para otra.
  for (const auto& [valor, lista] : elecciones)
    if (!valor.empty() && !lista.empty() && !EstaEn(lista, valor))
      return NoSeOfrece(valor, p.seleccion);
  return std::nullopt;
}

// La elección del usuario, si la clase la usa.
std::string Elegido(const std::string& valor, ListaTextos lista) {
  return lista.empty() ? std::string() : valor;
}

float Superficie(const Edificio& edificio, const PeticionSistema& p) {
  return p.superficie.value_or(static_cast<float>(SuperficieDimensionado(edificio)));
}

// Nombre con que el catálogo genérico llama a cada tipo de caldera.
constexpr std::pair<std::string_view, std::string_view> kCalderasGenericas[] = {
    {"Convencional", "convencional"},
    {"Baja temperatura", "baja temperatura"},
    {"Condensacion", "condensación"},
    {"Biomasa", "biomasa"}};

std::size_t FilaGenerica(const CatalogoEquipos& catalogo, const TipoCatalogo& tipo,
                         const std::string& tipoGenerador) {
  if (tipo.familia != "Generadores") return 1;
  const auto modelos = catalogo.Modelos(kFabricanteDefecto, tipo.familia, tipo.tipo);
  for (const auto& [texto, parte] : kCalderasGenericas)
    if (texto == tipoGenerador)
      for (std::size_t i = 0; i < modelos.size(); ++i)
        if (modelos[i].modelo.find(parte) != std::string::npos) return i + 1;
  return 1;
}

}  // namespace

std::optional<Mensaje> RechazoSistema(const Edificio& edificio, const PeticionSistema& peticion) {
  if (!(Superficie(edificio, peticion) > 0.0F))
    return Mensaje{"Valor incorrecto",
                   "La superficie acondicionada tiene que ser mayor que cero. No se crea el "
                   "sistema"};
  const Existentes existentes = MirarExistentes(edificio);
  const Nuevo nuevo{TipoSistemaDe(peticion.tipoSistema), EsClaseEstacional(peticion.seleccion),
                    peticion.tipologia == kCentralizada};
  for (const Regla& regla : kReglas)
    if (regla.rechaza(existentes, nuevo)) return Mensaje{kTituloAviso, regla.texto};
  return RechazoElecciones(peticion);
}

SistemaResidencial NuevoSistema(const Edificio& edificio, const PeticionSistema& peticion,
                                const CatalogoEquipos* catalogo) {
  const std::string& tipo = peticion.tipoSistema;
  const std::string& clase = peticion.seleccion;
  Instalaciones bloque;
  bloque.Seleccion = clase;
  bloque.TipoInstalacionesG = peticion.tipologia;
  bloque.TipoBC1 = peticion.tipoBC1;
  bloque.Emisor = Elegido(peticion.emisor, EmisoresOfrecidos(tipo, clase));
  bloque.Distribucion = Elegido(peticion.distribucion, DistribucionesOfrecidas(tipo, clase));
  bloque.Distribucion2 = Elegido(peticion.distribucion2, Distribuciones2Ofrecidas(tipo, clase));
  DimensionarBloque(edificio, tipo, bloque);
  bloque.Fabricante = kFabricanteDefecto;
  if (catalogo != nullptr) PonerModeloGenerico(*catalogo, bloque);

  SistemaResidencial sistema;
  sistema.Tipo_sistema = tipo;
  sistema.Nombre_sistema = peticion.nombre.empty()
                               ? "Sistema " + std::to_string(edificio.NumeroSistemas() + 1)
                               : peticion.nombre;
  const T servicios = TipoSistemaDe(tipo);
  const float superficie = Superficie(edificio, peticion);
  if (DaACS(servicios)) sistema.Sup_ACS = superficie;
  if (DaCalefaccion(servicios)) sistema.Sup_Calefaccion = superficie;
  if (DaRefrigeracion(servicios)) sistema.Sup_Refrigeracion = superficie;
  sistema.instalaciones.push_back(std::move(bloque));
  return sistema;
}

bool CrearSistema(Edificio& edificio, const PeticionSistema& peticion,
                  const CatalogoEquipos* catalogo, Mensajes& mensajes) {
  if (const auto rechazo = RechazoSistema(edificio, peticion)) {
    mensajes.Avisar(rechazo->titulo, rechazo->texto);
    return false;
  }
  edificio.AnadirSistema(NuevoSistema(edificio, peticion, catalogo));
  return true;
}

bool PonerModeloGenerico(const CatalogoEquipos& catalogo, Instalaciones& bloque) {
  bloque.Fabricante = kFabricanteDefecto;
  bloque.Modelo.clear();
  bloque.curvas = {};
  const TipoCatalogo tipo = TipoDeCatalogo(bloque.Seleccion);
  if (tipo.familia.empty()) return false;
  return catalogo.Aplicar(kFabricanteDefecto, tipo.familia, tipo.tipo,
                          FilaGenerica(catalogo, tipo, bloque.TipoGenerador1), bloque);
}

}  // namespace novex
