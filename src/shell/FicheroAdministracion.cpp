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

namespace novex {
namespace {

constexpr const char* kFinal = "_certi.xml";
constexpr const char* kAviso = "AVISO";
constexpr const char* kEscritoAlLado =
    "Escrito en el mismo subdirectorio, nombre fichero acabado en '_certi.xml'";
constexpr const char* kEscritoConNombre =
    "Escrito en el subdirectorio, con el nombre indicado acabado en '_certi.xml'";
const Mensaje kNoSeCalifica = {kAviso,
                               "No se genera el fichero. Una simulación libre no se califica"};

std::filesystem::path RutaInforme(const std::filesystem::path& proyecto) {
  return proyecto.parent_path() / (proyecto.stem().string() + kFinal);
}

// Lo que impide hacer el fichero: los datos que exige y los que necesita el cálculo.
std::vector<Mensaje> Impedimentos(const Edificio& base) {
  if (const auto aviso = ComprobarAdministracion(base)) return {*aviso};
  if (!SeCalifica(base)) return {kNoSeCalifica};
  return AvisosPrevios(base);
}

// Las medidas marcadas del caso base; vacío si no se ha podido preparar el estudio.
std::optional<MejorasMedidas> MedirMarcadas(GestorEdifActivo& gestor, Entorno& entorno) {
  const auto codigos = CodigosMarcados(gestor.Caso(caso::kViejo)->GetEstudioModificaciones());
  if (codigos.empty()) return MejorasMedidas{};
  const auto estudio = EstudioMejoras::Preparar(gestor, caso::kViejo, entorno);
  if (!estudio) return std::nullopt;
  return MejorasMedidas{estudio->Base(),
                        estudio->Medir(codigos, std::max(1U, std::thread::hardware_concurrency()))};
}

std::optional<std::string> HacerInforme(GestorEdifActivo& gestor,
                                        const PedidoAdministracion& pedido, Entorno& entorno) {
  Edificio& base = *gestor.Caso(caso::kViejo);
  if (!CalcularCaso(gestor, caso::kViejo, entorno)) return std::nullopt;
  const calculo& resultado = *base.GetCalculo();
  if (resultado.resultados.depositoNulo) return std::nullopt;
  auto mejoras = MedirMarcadas(gestor, entorno);
  if (!mejoras) return std::nullopt;
  const VerificacionHE verificacion =
      VerificarHE(base, resultado, LeerDocumentosHE(entorno.ficheros.Espacio().Datos()));
  std::vector<const Edificio*> proyecto;
  for (std::size_t i = 0; i < gestor.NumeroCasos(); ++i)
    if (const Edificio* caso = gestor.Caso(GestorEdifActivo::NombreCasoUsuario(i)))
      proyecto.push_back(caso);
  return InformeEvaluacion({{std::string(caso::kViejo), &base, &resultado, {}},
                            verificacion,
                            std::move(*mejoras),
                            std::move(proyecto),
                            pedido.derivados});
}

}  // namespace

EscrituraAdministracion EscribirFicheroAdministracion(GestorEdifActivo& gestor,
                                                      const PedidoAdministracion& pedido,
                                                      Entorno& entorno) {
  const auto impedimentos = Impedimentos(*gestor.Caso(caso::kViejo));
  for (const Mensaje& aviso : impedimentos) entorno.mensajes.Avisar(aviso.titulo, aviso.texto);
  if (!impedimentos.empty()) return {FinAdministracion::Rechazado, {}, {}};
  const auto informe = HacerInforme(gestor, pedido, entorno);
  if (!informe) return {FinAdministracion::SinCalcular, {}, {}};

  EscrituraAdministracion escritura{FinAdministracion::Escrito, {}, {}};
  escritura.proyecto =
      GuardarProyecto(gestor, pedido.proyecto, pedido.derivados, pedido.codificacion);
  escritura.informe = RutaInforme(escritura.proyecto);
  if (!pedido.convertidor || !pedido.convertidor(escritura.proyecto, escritura.informe))
    EscribirFichero(escritura.informe, *informe);
  entorno.mensajes.Avisar(kAviso, pedido.nombreElegido ? kEscritoConNombre : kEscritoAlLado);
  return escritura;
}

}  // namespace novex
