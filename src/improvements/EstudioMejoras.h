#pragma once

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "calculation/EjecutarCalculo.h"
#include "calculation/SimulacionPreparada.h"
#include "improvements/MedidasPredefinidas.h"

namespace novex {

/// Códigos del estudio que no son de una medida: el caso como está, antes y después.
inline constexpr int kCodigoBase = 1;
inline constexpr int kCodigoFinal = 286;

/// Las veintiuna cifras que se guardan de una medida, por m2 y año.
enum class CifraMedida : std::size_t {
  DemandaCale,
  DemandaRef,
  EnergiaPrimariaCal,
  EnergiaPrimariaRef,
  EnergiaPrimariaACS,
  EnergiaPrimariaIluminacion,
  EnergiaPrimariaTotal,
  EnergiaFinalCal,
  EnergiaFinalRef,
  EnergiaFinalACS,
  EnergiaFinalCalEsp,
  EnergiaFinalRefEsp,
  EnergiaFinalACSEsp,
  EnergiaFinalIluminacion,
  EnergiaFinalTotal,
  EnergiaFinalTotalEsp,
  EmisionesCal,
  EmisionesRef,
  EmisionesACS,
  EmisionesIluminacion,
  EmisionesTotal
};
inline constexpr std::size_t kCifrasMedida = 21;
/// Clave de una cifra.
std::string_view ClaveCifra(CifraMedida cifra);

/// Lo que resulta de una medida. La energía primaria es la no renovable; la final "Esp" no cuenta
/// la solar, la del ambiente ni la fotovoltaica.
struct ResultadoMedida {
  int codigo = 0;
  std::array<float, kCifrasMedida> cifras{};
  std::array<std::string, kIndicadores> letras;
  float operator[](CifraMedida cifra) const { return cifras[static_cast<std::size_t>(cifra)]; }
  bool operator==(const ResultadoMedida&) const = default;
};

/// Medidas de un estudio con la base de que parten.
struct MejorasMedidas {
  ResultadoMedida base;
  std::vector<ResultadoMedida> medidas;  ///< las marcadas, por orden de código
};

/// Las cifras de un caso calculado tal como está: la base de su estudio.
ResultadoMedida BaseDeEstudio(const ResultadosCaso& resultados, const DatosGenerales& generales);

/// El estudio de medidas de un caso. Prepara el caso una vez; cada medida se simula sobre una
/// copia, así que el caso y sus resultados quedan como estaban.
class EstudioMejoras {
  // Solo `Empezar` hace estudios.
  struct Llave {};

 public:
  explicit EstudioMejoras(Llave) {}
  /// \returns nulo si falta el fichero de clima o un depósito no tiene volumen (el aviso ya se ha
  /// dado)
  /// \throws lo mismo que `EjecutarCalculo`
  static std::unique_ptr<EstudioMejoras> Preparar(GestorEdifActivo& gestor,
                                                  std::string_view nombreCaso, Entorno& entorno);
  /// Lo mismo sin simular la base, que quien llama avanza por tramos antes de medir nada. El caso
  /// de un uso terciario ha de tener ya su referencia, o se calcula entera aquí.
  static std::unique_ptr<EstudioMejoras> Empezar(GestorEdifActivo& gestor,
                                                 std::string_view nombreCaso, Entorno& entorno);
  /// Avanza la base hasta `horas` horas. \returns false cuando ya no queda ninguna
  /// \throws ErrorCalculo
  bool AvanzarBase(int horas);
  /// Parte hecha de la base, de 0 a 100.
  int PorcentajeBase() const { return simulacionBase_ ? simulacionBase_->Porcentaje() : 100; }
  /// Acabada la base, ¿vale? No, si un depósito no tiene volumen.
  bool HayBase() const { return base_.codigo == kCodigoBase; }

  /// El caso como está.
  const ResultadoMedida& Base() const { return base_; }
  /// Mide un código: el de una medida, o los de la base. No cambia nada, y se puede llamar desde
  /// varios hilos. \throws std::out_of_range si no es un código \throws ErrorCalculo
  ResultadoMedida MedirCodigo(int codigo) const;
  /// Mide varias, repartidas entre hilos; el resultado no depende de cuántos.
  /// \param hilos al menos 1 \param hecha se llama al acabar cada una, de una en una; puede ser
  /// nula \throws ErrorCalculo el primero que haya
  std::vector<ResultadoMedida> Medir(std::span<const int> codigos, unsigned hilos,
                                     const std::function<void()>& hecha = {}) const;

 private:
  friend class MedicionPorTramos;
  void PonerReferencia(const Edificio& edificio, calculo& caso) const;
  void RehacerServicios(const Edificio& edificio, calculo& caso) const;

  std::unique_ptr<Edificio> edificio_;
  std::unique_ptr<calculo> preparado_;
  AnosACS aguaCaliente_;
  std::optional<DemandaReferencia> referencia_;
  RegistroMensajes avisosBase_;
  std::unique_ptr<SimulacionPreparada> simulacionBase_;
  IndicadoresServicio acsBase_;
  ResultadoMedida base_;
};

/// La medida de un código, por tramos.
class MedicionPorTramos {
 public:
  /// \param estudio con su base; ha de durar más que esto \throws std::out_of_range si el código no
  /// es de una medida ni de la base
  MedicionPorTramos(const EstudioMejoras& estudio, int codigo);
  /// Avanza hasta `horas` horas. \returns false cuando está medida \throws ErrorCalculo
  bool Avanzar(int horas);
  /// Lo medido, al acabar.
  const ResultadoMedida& Resultado() const { return resultado_; }

 private:
  const EstudioMejoras& estudio_;
  RegistroMensajes avisos_;
  SimulacionPreparada simulacion_;
  ResultadoMedida resultado_;
};

/// Más marcas de las que se pueden calcular, o nada.
std::optional<Mensaje> AvisoMarcas(const EstudioModificaciones& estudio);
/// Códigos marcados del estudio, por orden.
std::vector<int> CodigosMarcados(const EstudioModificaciones& estudio);

}  // namespace novex
