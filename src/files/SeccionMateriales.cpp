#include <charconv>

#include "files/LimitesProyecto.h"
#include "files/SeccionesProyecto.h"

namespace novex {
namespace {

using M = material;

constexpr std::string_view kCapasSeccion = "Capas_materiales";
constexpr std::string_view kMaterial = "Material";
constexpr std::string_view kIndiceCapa = "Indice_capa_material";
constexpr std::string_view kComposiciones = "Composiciones";
constexpr std::string_view kAplicacion = "Aplicacion";
constexpr std::string_view kNombreComposicion = "NombreComposicion";
constexpr std::string_view kIndiceMaterial = "IndiceMaterial";

constexpr std::array kCampos = {
    Texto<&M::Material>(kMaterial),
    Texto<&M::Nombre_material>("Nombre_material"),
    Real<&M::Espesor>("Espesor", 3),
    Real<&M::Conductividad>("Conductividad", 3),
    Real<&M::Densidad>("Densidad", 3),
    Real<&M::CalorEspecifico>("CalorEspecifico", 3),
    Texto<&M::Iniciales>("Iniciales"),
    Real<&M::Resistencia_termica>("Resistencia_termica", 3),
    Real<&M::Resisvidad_relativa_vapor>("Resisvidad_relativa_vapor", 3),
    Texto<&M::Grupo>("Grupo"),
    Texto<&M::Pertenece_a_base_de_datos_CTE>("Pertenece_a_base_de_datos_CTE"),
    Texto<&M::Aplicacion>(kAplicacion)};

// Lee los materiales y da, por su posición en el fichero, la del almacén: los iguales son uno.
std::vector<std::size_t> LeerAlmacen(const XMLNode& novex, Edificio& edificio, Mensajes& mensajes) {
  const XMLNode seccion = novex.childNamed(kCapasSeccion);
  std::vector<std::size_t> almacen;
  std::size_t i = 0;
  while (const XMLNode nodo = seccion.childNamed(kMaterial, &i)) {
    M leido;
    LeerCampos<M>(nodo, kCampos, leido, mensajes);
    // Los nombres se comparan todos con todos.
    limiteProyecto::Comprobar("letras en el nombre de un material", leido.Material.size(),
                              limiteProyecto::kLetrasMaterial);
    almacen.push_back(edificio.AnadirMaterial(std::move(leido)));
    limiteProyecto::Comprobar("materiales", almacen.size(), limiteProyecto::kMateriales);
  }
  return almacen;
}

void LeerComposicion(const XMLNode& nodo, std::size_t ranura, Edificio& edificio,
                     const std::vector<std::size_t>& almacen, Mensajes& mensajes) {
  const std::string nombre = TextoDeHijo(nodo, kNombreComposicion);
  edificio.GetComposicion(ranura).nombre = nombre.empty() ? composicion::kNoDefinido : nombre;
  std::size_t i = 0;
  while (const XMLNode capa = nodo.childNamed(kIndiceMaterial, &i)) {
    const std::string_view texto = capa.attributeValue(kAtributoValor).value_or("");
    std::size_t indice = 0;
    const auto r = std::from_chars(texto.data(), texto.data() + texto.size(), indice);
    if (r.ec != std::errc() || indice >= almacen.size()) {
      mensajes.Avisar("AVISO", "La composición " + std::string(TablaEnvolvente::Clave(ranura)) +
                                   " tiene una capa \"" + std::string(texto) +
                                   "\" que no está en los materiales; no se lee");
      continue;
    }
    edificio.AnadirCapa(ranura, almacen[indice]);
    limiteProyecto::Comprobar("capas en una composición",
                              edificio.GetComposicion(ranura).capas.size(), limiteProyecto::kCapas);
  }
}

}  // namespace

void LeerMateriales(const XMLNode& novex, Edificio& edificio, Mensajes& mensajes) {
  const std::vector<std::size_t> almacen = LeerAlmacen(novex, edificio, mensajes);
  const XMLNode seccion = novex.childNamed(kComposiciones);
  for (std::size_t i = 0; i < seccion.childCount(); ++i) {
    const XMLNode nodo = seccion.childAt(i);
    const auto ranura = TablaEnvolvente::Indice(nodo.attributeValue(kAtributoValor).value_or(""));
    if (ranura) LeerComposicion(nodo, *ranura, edificio, almacen, mensajes);
  }
}

void EscribirMateriales(XMLNode& novex, const Edificio& edificio) {
  XMLNode capas = novex.appendChild(kCapasSeccion);
  for (std::size_t i = 0; i < edificio.NumeroMateriales(); ++i) {
    M copia = edificio.GetMaterial(i);
    XMLNode nodo = capas.appendChild(kMaterial);
    AnadirValor(nodo, kIndiceCapa, std::to_string(i));
    EscribirCampos<M>(nodo, kCampos, copia);
  }
  XMLNode seccion = novex.appendChild(kComposiciones);
  for (std::size_t ranura = 0; ranura < kRanuras; ++ranura) {
    const composicion& c = edificio.GetComposicion(ranura);
    XMLNode nodo = AnadirValor(seccion, kAplicacion, TablaEnvolvente::Clave(ranura));
    if (c.capas.empty()) continue;
    AnadirValor(nodo, kNombreComposicion, c.nombre);
    for (const M* capa : c.capas)
      AnadirValor(nodo, kIndiceMaterial, std::to_string(edificio.IndiceMaterial(capa)));
  }
}

}  // namespace novex
