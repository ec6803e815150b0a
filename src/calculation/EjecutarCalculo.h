#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "calculation/Entorno.h"
#include "demand/calculo.h"
#include "model/GestorEdifActivo.h"
#include "rating/ValoresReferencia.h"
#include "systems/HoraACS.h"

namespace novex {

/// Modo de un cálculo: el corriente quita los servicios forzados; los demás dejan los que haya.
inline constexpr std::string_view kModoTodo = "Todo";
inline constexpr std::string_view kModoBucle = "TodoDesdeBucle";

/// El objeto de cálculo de un caso; si no tiene, le da uno nuevo.
calculo& CalculoDe(Edificio& edificio);

/// Calcula un caso entero: prepara, simula el año y califica. Los resultados quedan en su
/// `calculo`. Un caso ya calculado no se repite. \param nombreCaso nombre del caso, para sus
/// ficheros \param modo `kModoTodo` o `kModoBucle` \returns false si falta el fichero de clima (el
/// aviso ya se ha dado) \throws ErrorCalculo si los datos no se pueden calcular o un resultado no
/// es finito \throws ErrorFichero si falta o está dañado un fichero de la carpeta de programa
bool EjecutarCalculo(Edificio& edificio, std::string_view nombreCaso, std::string_view modo,
                     Entorno& entorno);

/// Prepara un caso sin simularlo: clima, cargas, sitio, factores y equipos. Un caso que cambia solo
/// en lo que una medida impone se simula después con `SimulacionPreparada`, sin repetir esto.
/// \returns el cálculo preparado, o nulo si falta el fichero de clima (el aviso ya se ha dado)
/// \throws lo mismo que `EjecutarCalculo`
std::unique_ptr<calculo> PrepararCalculo(Edificio& edificio, Entorno& entorno);

/// Demanda del edificio de referencia de un proyecto, que se calcula si no tiene resultados; vacía
/// si falta su clima. \throws lo mismo que `EjecutarCalculo`
std::optional<DemandaReferencia> DemandaDeReferencia(GestorEdifActivo& gestor, Entorno& entorno);

/// Deja en los servicios lo que haya en el caso, sin sustituir ninguno.
void QuitarServiciosForzados(Forzados& forzados);

/// Pone en la referencia el edificio base con la envolvente del código. Sus equipos no cuentan:
/// solo se leen su demanda y su iluminación.
void CrearEdificioReferencia(GestorEdifActivo& gestor);

/// ¿Se califica un caso contra el edificio de referencia?
bool NecesitaReferencia(const DatosGenerales& generales);

/// Calcula un caso del proyecto y lo califica; a un uso terciario le hace antes falta el edificio
/// de referencia, que se calcula si no tiene resultados. \returns false si falta el fichero de
/// clima \throws lo mismo que `EjecutarCalculo`
bool CalcularCaso(GestorEdifActivo& gestor, std::string_view nombreCaso, Entorno& entorno);

/// Un caso que no se ha podido calcular.
struct CasoSinCalcular {
  std::string_view nombre;
  std::string motivo;  ///< vacío si ya lo ha dicho un aviso
};
/// Calcula y califica todos los casos del proyecto; el activo sigue siéndolo. Uno que no se puede
/// no impide los demás. \returns los que no se han podido: unos datos que pasan las comprobaciones
/// y no tienen sentido físico, o un fichero que falta
std::vector<CasoSinCalcular> CalcularProyecto(GestorEdifActivo& gestor, Entorno& entorno);

}  // namespace novex
