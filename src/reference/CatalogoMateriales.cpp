#include "reference/CatalogoMateriales.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/NumeroTexto.h"
#include "base/Texto.h"
#include "model/CatalogoCampos.h"

namespace novex {
namespace {

constexpr std::string_view kMaterial = "material";
constexpr std::string_view kNombreGrupo = "name";

constexpr std::string_view kDe4a6 = "Espesor entre 0,04 y 0,06 m)";
constexpr std::string_view kDe6a9 = "Espesor entre 0,06 y 0,09 m)";
constexpr std::string_view kDe10a11 = "Espesor entre 0,1 y 0,11 m)";
constexpr std::string_view kMedioPie = "Espesor entre 0,115 y 0,13 m)";
constexpr std::string_view kUnPie = "Espesor entre 0,24 y 0,28 m)";
constexpr std::array<std::pair<std::string_view, std::string_view>, 14> kLadrillos = {
    {{"Tabique de LH sencillo [40 mm < Espesor < 60 mm]", kDe4a6},
     {"Tabicón de LH doble [60 mm < E < 90 mm]", kDe6a9},
     {"Tabicón de LH triple [100 mm < E < 110 mm]", kDe10a11},
     {"Tabique de LH sencillo Gran Formato [40 mm < E < 60 mm]", kDe4a6},
     {"Tabicón de LH doble Gran Formato 60 mm < E < 90 mm", kDe6a9},
     {"Tabicón de LH triple Gran Formato 100 mm < E < 110 mm", kDe10a11},
     {"1/2 pie LP métrico o catalán 40 mm < G < 60 mm", kMedioPie},
     {"1/2 pie LP métrico o catalán 60 mm < G < 80 mm", kMedioPie},
     {"1/2 pie LP métrico o catalán 80 mm < G < 100 mm", kMedioPie},
     {"1 pie LP métrico o catalán 40 mm < G < 60 mm", kUnPie},
     {"1 pie LP métrico o catalán 60 mm < G < 80 mm", kUnPie},
     {"1 pie LP métrico o catalán 80 mm < G < 100 mm", kUnPie},
     {"1/2 pie LM métrico o catalán 40 mm < G < 50 mm", kMedioPie},
     {"1 pie LM métrico o catalán 40 mm < G < 50 mm", kUnPie}}};

// La rama de un catálogo, o nulo; vale para el catálogo constante y para el que se cambia.
template <class Nodo>
Nodo* Rama(Nodo& raiz, RamaMateriales rama) {
  Nodo* clase = HijoDe(raiz, rama.vertical ? "verticales" : "horizontales");
  return clase == nullptr ? nullptr : HijoDe(*clase, rama.lista);
}

template <class Nodo>
Nodo* Grupo(Nodo& raiz, RamaMateriales rama, std::size_t grupo) {
  Nodo* nodo = Rama(raiz, rama);
  return nodo == nullptr || grupo >= nodo->hijos.size() ? nullptr : &nodo->hijos[grupo];
}

// El mismo material con el mismo espesor, como se enseñan. La resistencia no cuenta: la de catálogo
// puede no ser el cociente exacto.
bool MismaFila(const Capa& a, const Capa& b) {
  const auto igual = [](float x, float y) {
    return RedondearDecimales(x, 3) == RedondearDecimales(y, 3);
  };
  return a.especificacion == b.especificacion && igual(a.espesor, b.espesor) && igual(a.k, b.k);
}

// Pone las columnas de un material. El espesor y la conductividad que tecleó el usuario van
// enteros.
void PonerMaterial(NodoConservado& nodo, const Capa& capa) {
  PonerCapa(nodo, capa);
  nodo.PonerAtributo("espesor", General(capa.espesor));
  nodo.PonerAtributo("k", General(capa.k));
}

// Dónde entra una capa: tras la última más fina de su nombre, si no ante la primera de su nombre, y
// al final si no hay ninguna.
std::size_t LugarDe(const NodoConservado& grupo, const Capa& capa) {
  std::size_t primera = grupo.hijos.size();
  std::optional<std::size_t> ultimaMasFina;
  for (std::size_t i = 0; i < grupo.hijos.size(); ++i) {
    const Capa otra = CapaDeNodo(grupo.hijos[i], capa.grupo);
    if (otra.especificacion != capa.especificacion) continue;
    primera = std::min(primera, i);
    if (otra.espesor < capa.espesor) ultimaMasFina = i;
  }
  return ultimaMasFina ? *ultimaMasFina + 1 : primera;
}

// El valor como queda en el fichero, para que lo guardado y lo que se ve sean lo mismo.
float Con(float valor, int decimales) {
  return RedondearDecimales(valor, decimales);
}

}  // namespace

Capa CapaDeNodo(const NodoConservado& nodo, std::string_view grupo) {
  const auto texto = [&](std::string_view clave) { return std::string(nodo.Atributo(clave)); };
  const auto numero = [&](std::string_view clave) {
    return NumeroDeCatalogo(nodo.Atributo(clave));
  };
  Capa capa;
  capa.especificacion = texto("especificacion");
  capa.espesor = numero("espesor");
  capa.k = numero("k");
  capa.den = numero("den");
  capa.cp = numero("cp");
  capa.rvapor = numero("rvapor");
  capa.rterm = numero("rterm");
  capa.ini = texto("ini");
  capa.cte = texto("cte");
  capa.grupo = grupo;
  return capa;
}

void PonerCapa(NodoConservado& nodo, const Capa& capa) {
  const auto numero = [&](std::string_view clave, float valor, int decimales) {
    nodo.PonerAtributo(clave, Fijo(static_cast<double>(valor), decimales));
  };
  nodo.PonerAtributo("especificacion", capa.especificacion);
  numero("espesor", capa.espesor, 3);
  numero("k", capa.k, 3);
  numero("den", capa.den, 2);
  numero("cp", capa.cp, 2);
  numero("rvapor", capa.rvapor, 2);
  numero("rterm", capa.rterm, 3);
  nodo.PonerAtributo("ini", capa.ini);
  nodo.PonerAtributo("cte", capa.cte);
}

std::vector<std::string> CatalogoMateriales::Grupos(RamaMateriales rama) const {
  std::vector<std::string> nombres;
  if (const NodoConservado* nodo = Rama(fichero_.Raiz(), rama))
    for (const NodoConservado& grupo : nodo->hijos)
      nombres.emplace_back(grupo.Atributo(kNombreGrupo));
  return nombres;
}

std::vector<MaterialCatalogo> CatalogoMateriales::Materiales(RamaMateriales rama,
                                                             std::string_view grupo) const {
  std::vector<MaterialCatalogo> lista;
  const NodoConservado* nodo = Rama(fichero_.Raiz(), rama);
  if (nodo == nullptr) return lista;
  for (std::size_t g = 0; g < nodo->hijos.size(); ++g) {
    const std::string_view nombre = nodo->hijos[g].Atributo(kNombreGrupo);
    if (grupo != kTodosLosGrupos && grupo != nombre) continue;
    for (std::size_t i = 0; i < nodo->hijos[g].hijos.size(); ++i)
      lista.push_back({rama, g, i, CapaDeNodo(nodo->hijos[g].hijos[i], nombre)});
  }
  return lista;
}

std::vector<MaterialCatalogo> CatalogoMateriales::Buscar(std::string_view texto) const {
  const std::string buscado = ClaveBusqueda(texto);
  std::vector<MaterialCatalogo> lista;
  for (const bool vertical : {true, false})
    for (const std::string_view nombre : {kListaCte, kListaNoCte})
      for (MaterialCatalogo& m : Materiales({vertical, nombre}, kTodosLosGrupos))
        if (ClaveBusqueda(m.capa.especificacion).find(buscado) != std::string::npos ||
            ClaveBusqueda(m.capa.grupo).find(buscado) != std::string::npos)
          lista.push_back(std::move(m));
  return lista;
}

bool CatalogoMateriales::PuedeCrear(std::string_view lista, std::string_view grupo) {
  if (grupo == kTodosLosGrupos) return false;
  return lista != kListaCte || !EsGrupoDeBloques(grupo);
}

std::string_view CatalogoMateriales::EspesorAdmitido(std::string_view nombre) {
  const auto* it = std::find_if(kLadrillos.begin(), kLadrillos.end(),
                                [&](const auto& fila) { return fila.first == nombre; });
  return it == kLadrillos.end() ? std::string_view{} : it->second;
}

std::optional<MaterialCatalogo> CatalogoMateriales::Insertar(RamaMateriales rama, std::size_t grupo,
                                                             const Capa& capa, Mensajes& mensajes) {
  std::size_t lugar = 0;
  const bool guardado = fichero_.Cambiar(
      [&](NodoConservado& raiz) {
        NodoConservado* nodo = Grupo(raiz, rama, grupo);
        if (nodo == nullptr) return false;
        lugar = LugarDe(*nodo, capa);
        // La primera de su nombre da lo que el fichero lleve además de las columnas.
        NodoConservado nuevo{std::string(kMaterial), {}, {}, {}};
        for (const NodoConservado& otro : nodo->hijos)
          if (otro.Atributo("especificacion") == capa.especificacion) {
            nuevo = otro;
            break;
          }
        PonerMaterial(nuevo, capa);
        nodo->hijos.insert(nodo->hijos.begin() + static_cast<std::ptrdiff_t>(lugar),
                           std::move(nuevo));
        return true;
      },
      mensajes);
  if (!guardado) return std::nullopt;
  return MaterialCatalogo{rama, grupo, lugar, capa};
}

std::optional<MaterialCatalogo> CatalogoMateriales::NuevoEspesor(const MaterialCatalogo& elegido,
                                                                 std::string_view espesor,
                                                                 Mensajes& mensajes) {
  if (!PuedeCrear(elegido.rama.lista, elegido.capa.grupo)) {
    mensajes.Avisar("AVISO", "En este grupo no se pueden crear nuevas capas");
    return std::nullopt;
  }
  Capa nueva =
      ConEspesor(elegido.capa, ComprobarValor(espesor, "Espesor", mensajes), elegido.rama.vertical);
  nueva.espesor = Con(nueva.espesor, 3);
  nueva.rterm = Con(nueva.rterm, 3);
  for (MaterialCatalogo& m : Materiales(elegido.rama, elegido.capa.grupo))
    if (m.grupo == elegido.grupo && MismaFila(m.capa, nueva)) return std::move(m);
  return Insertar(elegido.rama, elegido.grupo, nueva, mensajes);
}

std::optional<MaterialCatalogo> CatalogoMateriales::NuevoMaterial(RamaMateriales rama,
                                                                  std::string_view grupo,
                                                                  const MaterialNuevo& datos,
                                                                  Mensajes& mensajes) {
  const std::vector<std::string> grupos = Grupos(rama);
  const auto it = std::find(grupos.begin(), grupos.end(), grupo);
  if (!PuedeCrear(rama.lista, grupo) || it == grupos.end()) {
    mensajes.Avisar("AVISO", "(Para crear nuevas capas debe especificar un grupo de materiales)");
    return std::nullopt;
  }
  Capa capa;
  capa.especificacion = SinBlancos(datos.nombre);
  if (capa.especificacion.empty()) {
    mensajes.Avisar("AVISO", "El material debe tener un nombre");
    return std::nullopt;
  }
  capa.grupo = grupo;
  capa.ini = datos.ini;
  capa.cte = rama.lista;
  capa.espesor = ComprobarValor(datos.espesor, "EspesorNuevo", mensajes);
  capa.rvapor = Con(ComprobarValor(datos.rvapor, "ResisvT", mensajes), 2);
  if (grupo == kGrupoSinInercia) {
    capa.rterm = ComprobarValor(datos.rterm, "Resistcapa", mensajes);
    // Solo cuenta su resistencia; la conductividad equivalente distingue dos de igual nombre.
    capa.k = capa.rterm > 0.0F ? Con(capa.espesor / capa.rterm, 3) : 0.0F;
    capa.rterm = Con(capa.rterm, 3);
  } else {
    capa.k = ComprobarValor(datos.k, "K", mensajes);
    capa.den = ComprobarValor(datos.den, "Den", mensajes);
    capa.cp = ComprobarValor(datos.cp, "CP", mensajes);
    capa = ConEspesor(capa, capa.espesor, rama.vertical);
    capa.rterm = Con(capa.rterm, 3);
  }
  return Insertar(rama, static_cast<std::size_t>(it - grupos.begin()), capa, mensajes);
}

bool CatalogoMateriales::Borrar(const MaterialCatalogo& elegido, Mensajes& mensajes) {
  if (!PuedeCrear(elegido.rama.lista, elegido.capa.grupo)) return false;
  return fichero_.Cambiar(
      [&](NodoConservado& raiz) {
        NodoConservado* grupo = Grupo(raiz, elegido.rama, elegido.grupo);
        if (grupo == nullptr || elegido.indice >= grupo->hijos.size()) return false;
        grupo->hijos.erase(grupo->hijos.begin() + static_cast<std::ptrdiff_t>(elegido.indice));
        return true;
      },
      mensajes);
}

bool CatalogoMateriales::Mover(const MaterialCatalogo& elegido, Sentido sentido,
                               Mensajes& mensajes) {
  return fichero_.Cambiar(
      [&](NodoConservado& raiz) {
        NodoConservado* grupo = Grupo(raiz, elegido.rama, elegido.grupo);
        return grupo != nullptr && MoverHijo(*grupo, elegido.indice, sentido);
      },
      mensajes);
}

}  // namespace novex
