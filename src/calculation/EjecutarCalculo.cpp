#include "calculation/EjecutarCalculo.h"

#include "calculation/ComprobarDatos.h"
#include "calculation/PrepararCaso.h"
#include "calculation/SimulacionCaso.h"
#include "demand/FicherosCaso.h"

namespace novex {
namespace {

void QuitarServiciosForzados(Forzados& forzados) {
  for (ServicioForzado* s :
       {&forzados.CasoACS, &forzados.CasoCalefaccion, &forzados.CasoRefrigeracion})
    s->modo = "Normales";
}

void SimularCaso(Edificio& edificio, const AjustesUso& ajustes, Entorno& entorno, calculo& caso) {
  constexpr int kHorasPorTramo = 730;
  SimulacionCaso simulacion(edificio, ajustes, caso, entorno.mensajes);
  while (simulacion.Avanzar(kHorasPorTramo)) entorno.progreso.Avanzar(simulacion.Porcentaje());
  simulacion.Terminar();
}

void EscribirFicherosDeCaso(std::string_view nombreCaso, Entorno& entorno, const calculo& caso) {
  const auto carpeta = entorno.ficheros.Espacio().Datos();
  EscribirFicheroBalance(carpeta, nombreCaso, caso);
  EscribirFicheroSistemas(carpeta, nombreCaso);
}

}  // namespace

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
  SimularCaso(edificio, ajustes, entorno, caso);
  ComprobarResultados(caso);
  if (entorno.ficherosDeCaso) EscribirFicherosDeCaso(nombreCaso, entorno, caso);
  return true;
}

bool CalcularProyecto(GestorEdifActivo& gestor, Entorno& entorno) {
  bool todos = true;
  for (std::size_t i = 0; i < gestor.NumeroCasos(); ++i) {
    const std::string_view nombre = GestorEdifActivo::NombreCasoUsuario(i);
    todos = EjecutarCalculo(*gestor.Caso(nombre), nombre, kModoTodo, entorno) && todos;
  }
  return todos;
}

}  // namespace novex
