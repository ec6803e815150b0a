#include "shell/FicheroAdministracion.h"

#include <algorithm>
#include <optional>
#include <thread>

#include "base/FicheroSeguro.h"
#include "calculation/ComprobacionesPrevias.h"
#include "calculation/EjecutarCalculo.h"
#include "files/ProyectoFichero.h"
#include "outputs/ReglasResultados.h"
#include "outputs/administracion/ComprobacionesAdministracion.h"
#include "outputs/administracion/InformeEvaluacion.h"
#include "outputs/bloques/DerivadosDeResultados.h"
#include "shell/LanzadorExterno.h"
#include "shell/MejorasMarcadas.h"

namespace novex {
namespace {

constexpr const char* kAviso = "AVISO";
constexpr const char* kEscritoAlLado =
    "Escrito en el mismo subdirectorio, nombre fichero acabado en '_certi.xml'";
constexpr const char* kEscritoConNombre =
    "Escrito en el subdirectorio, con el nombre indicado acabado en '_certi.xml'";
const Mensaje kNoSeCalifica = {kAviso,
                               "No se genera el fichero. Una simulación libre no se califica"};

// Lo que impide hacer el fichero: los datos que exige y los que necesita el cálculo.
std::vector<Mensaje> Impedimentos(const Edificio& base) {
  if (const auto aviso = ComprobarAdministracion(base)) return {*aviso};
  if (!SeCalifica(base)) return {kNoSeCalifica};
  return AvisosPrevios(base);
}

// El informe y lo que el proyecto guarda del mismo cálculo.
struct InformeHecho {
  std::string texto;
  DatosDerivados derivados;
};

// Calcula una mejora del proyecto. Una sin acabar no impide el informe, que es de la base.
// \returns false si no se ha podido
bool CalcularMejora(GestorEdifActivo& gestor, const std::string& nombre, Entorno& entorno) {
  const Edificio& mejora = *gestor.Caso(nombre);
  if (!AvisosPrevios(mejora).empty()) return false;
  try {
    return CalcularCaso(gestor, nombre, entorno) && !mejora.GetCalculo()->resultados.depositoNulo;
  } catch (const ErrorCalculo& error) {
    entorno.mensajes.Avisar(kAviso, nombre + ": " + error.what());
    return false;
  }
}

// La base, ya calculada, y las mejoras que se pueden calcular.
std::vector<CasoCalculado> CasosDelProyecto(GestorEdifActivo& gestor, const CasoCalculado& base,
                                            Entorno& entorno) {
  std::vector<CasoCalculado> casos = {base};
  for (std::size_t i = 1; i < gestor.NumeroCasos(); ++i) {
    const std::string nombre(GestorEdifActivo::NombreCasoUsuario(i));
    const Edificio* mejora = gestor.Caso(nombre);
    if (mejora != nullptr && CalcularMejora(gestor, nombre, entorno))
      casos.push_back({nombre, mejora, mejora->GetCalculo().get(), {}});
  }
  return casos;
}

std::optional<InformeHecho> HacerInforme(GestorEdifActivo& gestor, Entorno& entorno) {
  Edificio& base = *gestor.Caso(caso::kViejo);
  if (!CalcularCaso(gestor, caso::kViejo, entorno)) return std::nullopt;
  const calculo& resultado = *base.GetCalculo();
  if (resultado.resultados.depositoNulo) return std::nullopt;
  auto mejoras = MedirMarcadas(gestor, caso::kViejo,
                               std::max(1U, std::thread::hardware_concurrency()), entorno);
  if (!mejoras) return std::nullopt;
  const DocumentosHE documentos = LeerDocumentosHE(entorno.ficheros.Espacio().Datos());
  const CasoCalculado caso = {std::string(caso::kViejo), &base, &resultado, {}};
  DatosDerivados derivados =
      DerivadosDeResultados(CasosDelProyecto(gestor, caso, entorno), documentos);
  std::vector<const Edificio*> proyecto;
  for (std::size_t i = 0; i < gestor.NumeroCasos(); ++i)
    if (const Edificio* otro = gestor.Caso(GestorEdifActivo::NombreCasoUsuario(i)))
      proyecto.push_back(otro);
  std::string texto = InformeEvaluacion({caso, VerificarHE(base, resultado, documentos),
                                         std::move(*mejoras), std::move(proyecto), derivados});
  return InformeHecho{std::move(texto), std::move(derivados)};
}

}  // namespace

EscrituraAdministracion EscribirFicheroAdministracion(GestorEdifActivo& gestor,
                                                      const PedidoAdministracion& pedido,
                                                      Entorno& entorno) {
  const auto impedimentos = Impedimentos(*gestor.Caso(caso::kViejo));
  for (const Mensaje& aviso : impedimentos) entorno.mensajes.Avisar(aviso.titulo, aviso.texto);
  if (!impedimentos.empty()) return {FinAdministracion::Rechazado, {}, {}};
  const auto informe = HacerInforme(gestor, entorno);
  if (!informe) return {FinAdministracion::SinCalcular, {}, {}};

  EscrituraAdministracion escritura{FinAdministracion::Escrito, {}, {}};
  escritura.proyecto =
      GuardarProyecto(gestor, pedido.proyecto, informe->derivados, pedido.codificacion);
  escritura.informe = RutaFicheroAdministracion(escritura.proyecto);
  if (!pedido.convertidor || !pedido.convertidor(escritura.proyecto, escritura.informe))
    EscribirFichero(escritura.informe, informe->texto);
  entorno.mensajes.Avisar(kAviso, pedido.nombreElegido ? kEscritoConNombre : kEscritoAlLado);
  return escritura;
}

}  // namespace novex
