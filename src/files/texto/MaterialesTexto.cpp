#include "base/NumeroTexto.h"
#include "base/Texto.h"
#include "files/LimitesProyecto.h"
#include "files/texto/EtiquetaTexto.h"

namespace novex {
namespace {

using M = material;

void EmpezarMaterial(EstadoTexto& e, const ValorTexto&) {
  AcabarMaterial(e);
  e.capa.emplace();
}

void PasarAComposicion(EstadoTexto& e, const ValorTexto& valor) {
  e.ranura = TablaEnvolvente::Indice(SinBlancos(valor.texto));
  if (!e.ranura) return e.Saltar(valor, "no es ninguna composición");
  if (e.edificio.GetComposicion(*e.ranura).capas.empty()) return;
  e.ranura.reset();
  e.Saltar(valor, "la composición está dos veces");
}

void LeerNombreComposicion(EstadoTexto& e, const ValorTexto& valor) {
  if (e.ranura && !valor.texto.empty()) e.edificio.GetComposicion(*e.ranura).nombre = valor.texto;
}

void AnadirCapa(EstadoTexto& e, const ValorTexto& valor) {
  if (!e.ranura) return e.Saltar(valor, "es de una composición que no se lee");
  double indice = -1;
  const bool esNumero = LeerReal(valor.texto, indice);
  if (!esNumero || indice < 0 || indice >= static_cast<double>(e.almacen.size()))
    return e.Saltar(valor, "no está en los materiales; la composición queda sin esa capa");
  if (e.edificio.GetComposicion(*e.ranura).capas.size() >= limiteProyecto::kCapas)
    return e.Saltar(valor, "la composición tiene demasiadas capas");
  e.edificio.AnadirCapa(*e.ranura, e.almacen[static_cast<std::size_t>(indice)]);
}

constexpr std::array kMateriales = {
    Salto("*[I] Numero capas materiales."),
    Control("*[I] Indice capa material.", EmpezarMaterial),
    Fila(Texto<&M::Material>("*[S] Material.")),
    Fila(Texto<&M::Nombre_material>("*[S] Nombre material.")),
    Fila(Real<&M::Espesor>("*[F] Espesor.", 0)),
    Fila(Real<&M::Conductividad>("*[F] Conductividad.", 0)),
    Fila(Real<&M::Densidad>("*[F] Densidad.", 0)),
    Fila(Real<&M::CalorEspecifico>("*[F] CalorEspecifico.", 0)),
    Fila(Texto<&M::Iniciales>("*[S] Iniciales.")),
    Fila(Real<&M::Resistencia_termica>("*[F] Resistencia termica.", 0)),
    Fila(Real<&M::Resisvidad_relativa_vapor>("*[F] Resisvidad relativa.", 0)),
    Fila(Texto<&M::Grupo>("*[S] Grupo.")),
    Fila(Texto<&M::Pertenece_a_base_de_datos_CTE>("*[S] Pertenece a base de datos CTE.")),
    Fila(Texto<&M::Aplicacion>("*[S] Aplicacion: F/M."))};

constexpr std::array kComposiciones = {Salto("*[I] Numero composiciones."),
                                       Control("*[S] Aplicacion.", PasarAComposicion),
                                       Accion("*[S] NombreComposicion.", LeerNombreComposicion),
                                       Salto("*[I] NumeroCapasComposicion."),
                                       Salto("*[I] NumeroCapa."),
                                       Accion("*[I] IndiceMaterial.", AnadirCapa),
                                       Salto("*[S] Linea 26."),
                                       Salto("*[S] Linea 27."),
                                       Salto("*[S] Linea 28."),
                                       Salto("*[S] Linea 29."),
                                       Salto("*[S] Linea 30.")};

constexpr std::array kPruebas = {
    Salto("*[S] Linea 1."),  Salto("*[S] Linea 2."),  Salto("*[S] Linea 3."),
    Salto("*[S] Linea 4."),  Salto("*[S] Linea 5."),  Salto("*[S] Linea 6."),
    Salto("*[S] Linea 7."),  Salto("*[S] Linea 8."),  Salto("*[S] Linea 9."),
    Salto("*[S] Linea 10."), Salto("*[S] Linea 11."), Salto("*[S] Linea 12."),
    Salto("*[S] Linea 13."), Salto("*[S] Linea 14."), Salto("*[S] Linea 15."),
    Salto("*[S] Linea 16."), Salto("*[S] Linea 17."), Salto("*[S] Linea 18."),
    Salto("*[S] Linea 19."), Salto("*[S] Linea 20."), Salto("*[S] Linea 21."),
    Salto("*[S] Linea 22."), Salto("*[S] Linea 23."), Salto("*[S] Linea 24."),
    Salto("*[S] Linea 25.")};

// El nombre con que se distingue un material del mismo con otro espesor.
std::string NombreConEspesor(const M& m) {
  constexpr float kCentimetros = 100;
  const std::string nombre = m.Nombre_material.empty() ? m.Material : m.Nombre_material;
  return nombre + " (" + General(RedondearDecimales(m.Espesor * kCentimetros, 4)) + "cm)";
}

bool EstaEnElAlmacen(const Edificio& edificio, const M& buscado) {
  for (std::size_t i = 0; i < edificio.NumeroMateriales(); ++i)
    if (edificio.GetMaterial(i).MismoMaterial(buscado)) return true;
  return false;
}

}  // namespace

std::span<const FilaTexto> FilasMateriales() {
  return kMateriales;
}

std::span<const FilaTexto> FilasComposiciones() {
  return kComposiciones;
}

std::span<const FilaTexto> FilasPruebas() {
  return kPruebas;
}

void AcabarMaterial(EstadoTexto& e) {
  if (!e.capa) return;
  M nuevo = std::move(*e.capa);
  e.capa.reset();
  if (e.almacen.size() >= limiteProyecto::kMateriales) {
    InformeLectura::Anotar(e.informe.saltados, "Hay demasiados materiales: no se leen más");
    return;
  }
  nuevo.Material = NombreConEspesor(nuevo);
  if (EstaEnElAlmacen(e.edificio, nuevo)) {
    InformeLectura::Anotar(e.informe.cambiados, "Material repetido \"" + nuevo.Material +
                                                    "\" -> \"duplicado-" + nuevo.Material + "\"");
    nuevo.Material = "duplicado-" + nuevo.Material;
  }
  // El almacén junta los iguales: cada material del fichero sabe cuál es el suyo.
  e.almacen.push_back(e.edificio.AnadirMaterial(std::move(nuevo)));
}

}  // namespace novex
