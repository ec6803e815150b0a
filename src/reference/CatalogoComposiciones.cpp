#include "reference/CatalogoComposiciones.h"

#include <algorithm>
#include <utility>

#include "base/Texto.h"
#include "reference/CatalogoMateriales.h"

namespace novex {
namespace {

constexpr std::string_view kComposicion = "Composicion";
constexpr std::string_view kCapa = "Capa";
constexpr std::string_view kNombre = "name";
constexpr std::string_view kPeriodo = "periodo";
constexpr std::string_view kGrupoMaterial = "grupo_name";

constexpr const char* kAtencion = "Atención";
constexpr const char* kFaltaSubtipoAlmacenar =
    "Se debe especificar/elegir un determinado subtipo. En el se almacenará";
constexpr const char* kFaltaSubtipoCrear =
    "Se debe especificar/elegir un determinado subtipo. En cada subtipo siempre debe existir como "
    "mínimo una composición";

constexpr std::string_view kSi = "SI";

template <class Nodo>
Nodo* GrupoPorNombre(Nodo& raiz, FamiliaCerramiento familia, std::string_view subtipo) {
  Nodo* rama = HijoDe(raiz, NombreFamilia(familia));
  if (rama == nullptr) return nullptr;
  for (auto& grupo : rama->hijos)
    if (grupo.Atributo(kNombre) == subtipo) return &grupo;
  return nullptr;
}

NodoConservado* GrupoDe(NodoConservado& raiz, const ComposicionCatalogo& c) {
  NodoConservado* rama = HijoDe(raiz, NombreFamilia(c.familia));
  return rama == nullptr || c.grupo >= rama->hijos.size() ? nullptr : &rama->hijos[c.grupo];
}

// Un nombre que el grupo no tenga: el dado, o con el primer número libre.
std::string NombreLibre(const NodoConservado& grupo, std::string_view nombre) {
  const auto ocupado = [&](const std::string& texto) {
    return std::any_of(grupo.hijos.begin(), grupo.hijos.end(),
                       [&](const NodoConservado& c) { return c.Atributo(kNombre) == texto; });
  };
  std::string libre(nombre);
  for (int n = 2; ocupado(libre); ++n) libre = std::string(nombre) + " (" + std::to_string(n) + ")";
  return libre;
}

ComposicionCatalogo Leer(const NodoConservado& nodo) {
  ComposicionCatalogo c;
  c.nombre = nodo.Atributo(kNombre);
  c.periodo = nodo.Atributo(kPeriodo);
  for (const NodoConservado& hijo : nodo.hijos)
    if (hijo.nombre == kCapa) c.capas.push_back(CapaDeNodo(hijo, hijo.Atributo(kGrupoMaterial)));
  return c;
}

}  // namespace

std::vector<std::string> CatalogoComposiciones::Subtipos(FamiliaCerramiento familia) const {
  std::vector<std::string> nombres;
  if (const NodoConservado* rama = HijoDe(fichero_.Raiz(), NombreFamilia(familia)))
    for (const NodoConservado& grupo : rama->hijos) nombres.emplace_back(grupo.Atributo(kNombre));
  return nombres;
}

std::vector<ComposicionCatalogo> CatalogoComposiciones::Composiciones(
    FamiliaCerramiento familia, std::string_view subtipo) const {
  std::vector<ComposicionCatalogo> lista;
  const NodoConservado* rama = HijoDe(fichero_.Raiz(), NombreFamilia(familia));
  if (rama == nullptr) return lista;
  for (std::size_t g = 0; g < rama->hijos.size(); ++g) {
    const NodoConservado& grupo = rama->hijos[g];
    const std::string_view nombre = grupo.Atributo(kNombre);
    if (subtipo != kTodosLosGrupos && subtipo != nombre) continue;
    for (std::size_t i = 0; i < grupo.hijos.size(); ++i) {
      ComposicionCatalogo c = Leer(grupo.hijos[i]);
      c.familia = familia;
      c.subtipo = nombre;
      c.grupo = g;
      c.indice = i;
      lista.push_back(std::move(c));
    }
  }
  return lista;
}

std::vector<ComposicionCatalogo> CatalogoComposiciones::Buscar(std::string_view texto) const {
  const std::string buscado = ClaveBusqueda(texto);
  const auto contiene = [&](const std::string& campo) {
    return ClaveBusqueda(campo).find(buscado) != std::string::npos;
  };
  std::vector<ComposicionCatalogo> lista;
  for (std::size_t f = 0; f < kFamiliasCatalogo; ++f)
    for (ComposicionCatalogo& c :
         Composiciones(static_cast<FamiliaCerramiento>(f), kTodosLosGrupos))
      if (contiene(c.nombre) || contiene(c.subtipo) || contiene(c.periodo))
        lista.push_back(std::move(c));
  return lista;
}

std::optional<ComposicionCatalogo> CatalogoComposiciones::PorNombre(FamiliaCerramiento familia,
                                                                    std::string_view nombre) const {
  for (ComposicionCatalogo& c : Composiciones(familia, kTodosLosGrupos))
    if (c.nombre == nombre) return std::move(c);
  return std::nullopt;
}

bool CatalogoComposiciones::Anadir(FamiliaCerramiento familia, std::string_view subtipo,
                                   std::string_view nombre, std::span<const Capa> capas,
                                   Mensajes& mensajes) {
  return fichero_.Cambiar(
      [&](NodoConservado& raiz) {
        NodoConservado* grupo = GrupoPorNombre(raiz, familia, subtipo);
        if (grupo == nullptr) return false;
        NodoConservado nueva{std::string(kComposicion), {}, {}, {}};
        nueva.PonerAtributo(kNombre, NombreLibre(*grupo, nombre));
        for (const Capa& capa : capas) {
          NodoConservado& nodo =
              nueva.hijos.emplace_back(NodoConservado{std::string(kCapa), {}, {}, {}});
          nodo.PonerAtributo(kGrupoMaterial, capa.grupo);
          PonerCapa(nodo, capa);
        }
        grupo->hijos.push_back(std::move(nueva));
        return true;
      },
      mensajes);
}

bool CatalogoComposiciones::Almacenar(const Edificio& edificio, std::size_t ranura,
                                      std::string_view subtipo, Mensajes& mensajes) {
  const FamiliaCerramiento familia = FamiliaDeRanura(ranura);
  if (GrupoPorNombre(fichero_.Raiz(), familia, subtipo) == nullptr) {
    mensajes.Avisar(kAtencion, kFaltaSubtipoAlmacenar);
    return false;
  }
  const std::vector<Capa> capas = CapasDeRanura(edificio, ranura);
  if (capas.empty()) {
    mensajes.Avisar(kAtencion, "El cerramiento debe contener almenos una capa");
    return false;
  }
  return Anadir(familia, subtipo, edificio.GetComposicion(ranura).nombre, capas, mensajes);
}

bool CatalogoComposiciones::PuedeCrear(FamiliaCerramiento familia, std::string_view subtipo,
                                       Mensajes& mensajes) const {
  if (GrupoPorNombre(fichero_.Raiz(), familia, subtipo) != nullptr) return true;
  mensajes.Avisar(kAtencion, kFaltaSubtipoCrear);
  return false;
}

bool CatalogoComposiciones::Crear(FamiliaCerramiento familia, std::string_view subtipo,
                                  std::string_view nombre, std::span<const Capa> capas,
                                  Mensajes& mensajes) {
  if (!PuedeCrear(familia, subtipo, mensajes)) return false;
  if (!ComprobarCerramiento(capas, mensajes)) return false;
  const std::string_view sinBlancos = SinBlancos(nombre);
  if (sinBlancos.empty()) {
    mensajes.Avisar(kAtencion, "La composición debe tener un nombre");
    return false;
  }
  return Anadir(familia, subtipo, sinBlancos, capas, mensajes);
}

bool CatalogoComposiciones::Eliminar(const ComposicionCatalogo& elegida, Mensajes& mensajes) {
  return fichero_.Cambiar(
      [&](NodoConservado& raiz) {
        NodoConservado* grupo = GrupoDe(raiz, elegida);
        if (grupo == nullptr || elegida.indice >= grupo->hijos.size()) return false;
        if (grupo->hijos.size() == 1) {
          mensajes.Avisar(kAtencion, kFaltaSubtipoCrear);
          return false;
        }
        grupo->hijos.erase(grupo->hijos.begin() + static_cast<std::ptrdiff_t>(elegida.indice));
        return true;
      },
      mensajes);
}

bool CatalogoComposiciones::Mover(const ComposicionCatalogo& elegida, Sentido sentido,
                                  Mensajes& mensajes) {
  return fichero_.Cambiar(
      [&](NodoConservado& raiz) {
        NodoConservado* grupo = GrupoDe(raiz, elegida);
        return grupo != nullptr && MoverHijo(*grupo, elegida.indice, sentido);
      },
      mensajes);
}

ComposicionCatalogo CopiaParaEditar(ComposicionCatalogo elegida) {
  elegida.nombre += kMarcaCopia;
  return elegida;
}

void ElegirComposicion(Edificio& edificio, std::size_t ranura, std::string_view nombre,
                       std::span<const Capa> capas) {
  const FamiliaCerramiento familia = FamiliaDeRanura(ranura);
  edificio.LimpiarComposicion(ranura);
  edificio.GetComposicion(ranura).nombre = nombre;
  for (const Capa& capa : capas) {
    material nuevo;
    nuevo.Material = nuevo.Nombre_material = capa.especificacion;
    nuevo.Espesor = capa.espesor;
    nuevo.Conductividad = capa.k;
    nuevo.Densidad = capa.den;
    nuevo.CalorEspecifico = capa.cp;
    nuevo.Iniciales = capa.ini;
    nuevo.Resistencia_termica = capa.rterm;
    nuevo.Resisvidad_relativa_vapor = capa.rvapor;
    nuevo.Grupo = capa.grupo;
    nuevo.Pertenece_a_base_de_datos_CTE = capa.cte == kListaCte ? kSi : std::string_view("NO");
    nuevo.Aplicacion = AplicacionDe(familia);
    edificio.AnadirMaterial(std::move(nuevo), ranura);
  }
  edificio.GetComposicion(ranura).U = UCerramiento(capas, familia);
}

std::vector<Capa> CapasDeRanura(const Edificio& edificio, std::size_t ranura) {
  std::vector<Capa> capas;
  for (const material* m : edificio.GetComposicion(ranura).capas)
    capas.push_back({m->Material, m->Espesor, m->Conductividad, m->Densidad, m->CalorEspecifico,
                     m->Resisvidad_relativa_vapor, m->Resistencia_termica, m->Iniciales,
                     std::string(m->Pertenece_a_base_de_datos_CTE == kSi ? kListaCte : kListaNoCte),
                     m->Grupo});
  return capas;
}

}  // namespace novex
