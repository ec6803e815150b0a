#include "calculation/EjecutarCalculo.h"

#include <optional>
#include <string>

#include "base/ErrorFichero.h"
#include "calculation/ComprobarDatos.h"
#include "calculation/PrepararCaso.h"
#include "calculation/SimulacionCaso.h"
#include "demand/FicherosCaso.h"
#include "rating/EnvolventeReferencia.h"
#include "rating/Escala.h"
#include "rating/ValoresReferencia.h"

namespace novex {
namespace {

void Avanzar(SimulacionCaso& simulacion, Progreso& progreso) {
  constexpr int kHorasPorTramo = 730;
  while (simulacion.Avanzar(kHorasPorTramo)) progreso.Avanzar(simulacion.Porcentaje());
  simulacion.Terminar();
}

// El avance de un caso dentro del de todos.
class ParteDelAvance : public Progreso {
 public:
  ParteDelAvance(Progreso& todo, std::size_t cual, std::size_t casos)
      : todo_(todo), cual_(static_cast<int>(cual)), casos_(static_cast<int>(casos)) {}
  void Avanzar(int porcentaje) override { todo_.Avanzar((100 * cual_ + porcentaje) / casos_); }

 private:
  Progreso& todo_;
  int cual_, casos_;
};

void EscribirFicherosDeCaso(std::string_view nombreCaso, Entorno& entorno, const calculo& caso) {
  const auto carpeta = entorno.ficheros.Espacio().Datos();
  EscribirFicheroBalance(carpeta, nombreCaso, caso);
  EscribirFicheroSistemas(carpeta, nombreCaso, caso);
}

}  // namespace

void QuitarServiciosForzados(Forzados& forzados) {
  for (ServicioForzado* s :
       {&forzados.CasoACS, &forzados.CasoCalefaccion, &forzados.CasoRefrigeracion})
    s->modo = "Normales";
}

void CrearEdificioReferencia(GestorEdifActivo& gestor) {
  gestor.CrearReferencia();
  Edificio& referencia = *gestor.Caso(caso::kReferencia);
  DatosGenerales g = referencia.GetDatosGenerales();
  g.WRecuperador = g.WRecuperadorr = 0;
  g.Eficiencia_recuperador = g.Eficiencia_recuperador_Ental = 0;
  g.PerdPresionToma = 0;
  referencia.SetDatosGenerales(g);
  while (referencia.NumeroSistemas() > 0) referencia.BorrarSistema(0);
  PonerEnvolventeReferencia(referencia);
}

std::optional<DemandaReferencia> DemandaDeReferencia(GestorEdifActivo& gestor, Entorno& entorno) {
  Edificio* referencia = gestor.Caso(caso::kReferencia);
  if (referencia == nullptr || !CalculoDe(*referencia).Calculado()) {
    CrearEdificioReferencia(gestor);
    referencia = gestor.Caso(caso::kReferencia);
    if (!EjecutarCalculo(*referencia, caso::kReferencia, kModoTodo, entorno)) return std::nullopt;
  }
  const calculo& c = *referencia->GetCalculo();
  const float superficie = referencia->GetRecinto(0).Suelo_habitable_m2;
  return DemandaReferencia{c.resultados.demandaCalefaccion, c.resultados.demandaRefrigeracion,
                           c.resultados.demandaACS, c.meses.iluminacion[0] / superficie};
}

bool NecesitaReferencia(const DatosGenerales& generales) {
  return !generales.EsResidencial() && generales.Tiposimulacion != "Simulacion";
}

calculo& CalculoDe(Edificio& edificio) {
  if (!edificio.GetCalculo()) edificio.SetCalculo(std::make_shared<calculo>());
  return *edificio.GetCalculo();
}

bool EjecutarCalculo(Edificio& edificio, std::string_view nombreCaso, std::string_view modo,
                     Entorno& entorno) {
  calculo& caso = CalculoDe(edificio);
  if (caso.Calculado()) return true;
  ComprobarDatosDeEntrada(edificio);
  const AjustesUso ajustes = ResolverAjustes(edificio);
  if (!PrepararCaso(edificio, ajustes, entorno, caso)) return false;
  if (modo == kModoTodo) QuitarServiciosForzados(caso.resultados.forzados);
  SimulacionCaso simulacion(edificio, ajustes, caso, entorno.mensajes);
  Avanzar(simulacion, entorno.progreso);
  ComprobarResultados(caso);
  if (entorno.ficherosDeCaso) EscribirFicherosDeCaso(nombreCaso, entorno, caso);
  return true;
}

std::unique_ptr<calculo> PrepararCalculo(Edificio& edificio, Entorno& entorno) {
  ComprobarDatosDeEntrada(edificio);
  auto preparado = std::make_unique<calculo>();
  if (!PrepararCaso(edificio, ResolverAjustes(edificio), entorno, *preparado)) return nullptr;
  return preparado;
}

bool CalcularCaso(GestorEdifActivo& gestor, std::string_view nombreCaso, Entorno& entorno) {
  Edificio& edificio = *gestor.Caso(nombreCaso);
  if (!EjecutarCalculo(edificio, nombreCaso, kModoTodo, entorno)) return false;
  if (!NecesitaReferencia(edificio.GetDatosGenerales())) return true;
  const auto referencia = DemandaDeReferencia(gestor, entorno);
  if (!referencia) return false;
  calculo& caso = CalculoDe(edificio);
  PonerValoresReferencia(edificio, *referencia, caso.resultados, entorno.mensajes);
  CalificarCaso(edificio, caso);
  return true;
}

std::vector<CasoSinCalcular> CalcularProyecto(GestorEdifActivo& gestor, Entorno& entorno) {
  std::vector<CasoSinCalcular> fallidos;
  for (std::size_t i = 0; i < gestor.NumeroCasos(); ++i) {
    const std::string_view nombre = GestorEdifActivo::NombreCasoUsuario(i);
    ParteDelAvance avance(entorno.progreso, i, gestor.NumeroCasos());
    Entorno propio{entorno.ficheros, entorno.mensajes, avance, entorno.ficherosDeCaso};
    try {
      if (!CalcularCaso(gestor, nombre, propio)) fallidos.push_back({nombre, {}});
    } catch (const ErrorCalculo& error) {
      fallidos.push_back({nombre, error.what()});
    } catch (const ErrorFichero& error) {
      fallidos.push_back({nombre, error.what()});
    }
  }
  return fallidos;
}

}  // namespace novex
