#include "reference/FusionCatalogos.h"

#include <algorithm>
#include <cstddef>

#include "base/FicheroSeguro.h"
#include "files/ErroresXml.h"
#include "files/NodoConservadoXml.h"
#include "files/xmlParser.h"
#include "reference/FicheroCatalogo.h"

namespace novex {
namespace {

constexpr std::string_view kGrupo = "grupo";
constexpr const char* kFabrica = "fabrica";

// Qué hace que dos entradas sean la misma: su nombre, y en un material también su espesor.
std::string Identidad(const NodoConservado& nodo, bool entrada) {
  const std::string separador(1, '\n');
  if (!entrada) return nodo.nombre + separador + std::string(nodo.Atributo("name"));
  return std::string(nodo.Atributo("name")) + separador +
         std::string(nodo.Atributo("especificacion")) + separador +
         std::string(nodo.Atributo("espesor"));
}

std::ptrdiff_t Posicion(const std::vector<NodoConservado>& lista, const std::string& identidad,
                        bool entradas) {
  const auto it = std::find_if(lista.begin(), lista.end(), [&](const NodoConservado& n) {
    return Identidad(n, entradas) == identidad;
  });
  return it == lista.end() ? -1 : it - lista.begin();
}

class Fusion {
 public:
  CuentaFusion cuenta;

  void Rama(const NodoConservado& anterior, NodoConservado& usuario, const NodoConservado& nuevo) {
    const bool entradas = nuevo.nombre == kGrupo;
    if (entradas) Retirar(anterior, usuario, nuevo);
    std::ptrdiff_t lugar = 0;  // dónde entraría la siguiente, tras su vecina de la versión nueva
    for (const NodoConservado& hijo : nuevo.hijos) {
      const std::string identidad = Identidad(hijo, entradas);
      const std::ptrdiff_t a = Posicion(anterior.hijos, identidad, entradas);
      const std::ptrdiff_t u = Posicion(usuario.hijos, identidad, entradas);
      const NodoConservado* antes = a < 0 ? nullptr : &anterior.hijos[static_cast<std::size_t>(a)];
      if (u >= 0) {
        NodoConservado& suyo = usuario.hijos[static_cast<std::size_t>(u)];
        if (entradas)
          Entrada(antes, suyo, hijo);
        else
          Rama(antes != nullptr ? *antes : NodoConservado{}, suyo, hijo);
        lugar = u + 1;
      } else if (antes != nullptr && entradas) {
        if (!(*antes == hijo)) ++cuenta.conservadas;
      } else {
        usuario.hijos.insert(usuario.hijos.begin() + lugar, hijo);
        cuenta.nuevas += entradas ? 1 : Entradas(hijo);
        ++lugar;
      }
    }
  }

 private:
  void Entrada(const NodoConservado* antes, NodoConservado& suyo, const NodoConservado& nueva) {
    if (suyo == nueva) return;
    if (antes != nullptr && suyo == *antes) {
      suyo = nueva;
      ++cuenta.corregidas;
    } else {
      ++cuenta.conservadas;
    }
  }

  // Quita lo que la versión nueva ya no trae, si el usuario no lo ha tocado.
  void Retirar(const NodoConservado& anterior, NodoConservado& usuario,
               const NodoConservado& nuevo) {
    const auto sobran = std::erase_if(usuario.hijos, [&](const NodoConservado& suyo) {
      return Posicion(nuevo.hijos, Identidad(suyo, true), true) < 0 &&
             std::find(anterior.hijos.begin(), anterior.hijos.end(), suyo) != anterior.hijos.end();
    });
    cuenta.retiradas += static_cast<int>(sobran);
  }

  static int Entradas(const NodoConservado& nodo) {
    if (nodo.nombre == kGrupo) return static_cast<int>(nodo.hijos.size());
    int n = 0;
    for (const NodoConservado& hijo : nodo.hijos) n += Entradas(hijo);
    return n;
  }
};

NodoConservado LeerSiEsta(const std::filesystem::path& ruta, const std::string& raiz) {
  if (!std::filesystem::exists(ruta)) return {};
  return Conservar(XMLNode::loadFile(ruta, raiz));
}

}  // namespace

CuentaFusion FundirCatalogo(const NodoConservado& anterior, NodoConservado& usuario,
                            const NodoConservado& nuevo) {
  Fusion fusion;
  fusion.Rama(anterior, usuario, nuevo);
  return fusion.cuenta;
}

const std::vector<CatalogoAmpliable>& CatalogosAmpliables() {
  static const std::vector<CatalogoAmpliable> catalogos = {
      {"Materiales.xml", "MaterialesNovex"}, {"Composiciones.xml", "ComposicionesNovex"}};
  return catalogos;
}

std::vector<CuentaFusion> ActualizarCatalogos(const std::filesystem::path& deLaVersion,
                                              const std::filesystem::path& datos) {
  std::filesystem::create_directories(datos / kFabrica);
  std::vector<CuentaFusion> cuentas;
  for (const CatalogoAmpliable& c : CatalogosAmpliables()) {
    const std::filesystem::path suyo = datos / c.fichero;
    const std::filesystem::path copia = datos / kFabrica / c.fichero;
    const std::string bytes = LeerFichero(deLaVersion / c.fichero);
    const NodoConservado nuevo =
        Conservar(XMLNode::parseString(bytes, c.raiz, (deLaVersion / c.fichero).string()));
    CuentaFusion cuenta;
    if (std::filesystem::exists(suyo)) {
      NodoConservado usuario = Conservar(XMLNode::loadFile(suyo, c.raiz));
      const NodoConservado antes = usuario;
      cuenta = FundirCatalogo(LeerSiEsta(copia, c.raiz), usuario, nuevo);
      if (!(usuario == antes))
        if (const int codigo = EscribirCatalogo(usuario, suyo))
          throw ErrorLecturaXml(suyo.string(), codigo, {});
    } else {
      NodoConservado vacio = nuevo;
      vacio.hijos.clear();
      cuenta = FundirCatalogo({}, vacio, nuevo);
      EscribirFichero(suyo, bytes);
    }
    EscribirFichero(copia, bytes);
    cuentas.push_back(cuenta);
  }
  return cuentas;
}

}  // namespace novex
