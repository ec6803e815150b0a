// Medidas de las etapas de un cálculo. Los proyectos y la carpeta de programa son los que deja la
// compilación: `banco` se arranca desde la carpeta donde está.
#include <benchmark/benchmark.h>

#include <string>

#include "base/FicheroSeguro.h"
#include "calculation/EjecutarCalculo.h"
#include "calculation/PrepararCaso.h"
#include "calculation/SimulacionCaso.h"
#include "demand/Cargas.h"
#include "demand/Clima.h"
#include "files/ProyectoFichero.h"
#include "rating/Plegado.h"
#include "shell/EmitirDocumento.h"

namespace {

using namespace novex;

constexpr const char* kCarpeta = "programa";

// Un proyecto abierto con su entorno.
struct Banco {
  explicit Banco(const std::string& nombre) : ficheros(EspacioTrabajo{kCarpeta}) {
    AbrirProyecto(gestor, std::string(kCarpeta) + "/proyectos/" + nombre, ModoApertura::Nuevo,
                  mensajes);
  }
  Entorno Dar() { return {ficheros, mensajes, progreso}; }
  Edificio& Base() { return *gestor.Caso(caso::kViejo); }

  FicherosPrograma ficheros;
  RegistroMensajes mensajes;
  Progreso progreso;
  GestorEdifActivo gestor;
};

constexpr const char* kVivienda = "vivienda_unifamiliar_D3.xml";

void LeerProyecto(benchmark::State& estado) {
  for (auto _ : estado) {
    Banco banco(kVivienda);
    benchmark::DoNotOptimize(banco.gestor.NumeroCasos());
  }
}

void LeerFicheroDeClima(benchmark::State& estado) {
  const std::string contenido = LeerFichero(EspacioTrabajo{kCarpeta}.Clima("D3", ""));
  for (auto _ : estado) benchmark::DoNotOptimize(LeerMet(contenido).horas.size());
}

void ClimaYRespuesta(benchmark::State& estado) {
  Banco banco(kVivienda);
  const FicheroMet met = LeerMet(LeerFichero(EspacioTrabajo{kCarpeta}.Clima("D3", "")));
  const CoeficientesRespuesta& coeficientes = banco.ficheros.Respuesta(banco.mensajes);
  SeriesClima clima;
  for (auto _ : estado) {
    LeerClima(met, clima);
    CalcularSolYRespuesta(coeficientes, 0, 0, clima);
    RedondearClima(clima);
    benchmark::ClobberMemory();
  }
}

void Cargas(benchmark::State& estado) {
  Banco banco(kVivienda);
  const AjustesUso ajustes = ResolverAjustes(banco.Base());
  SeriesCarga carga;
  SeriesClima clima;
  for (auto _ : estado) {
    GenerarCargas(banco.Base().GetDatosGenerales(), ajustes, carga);
    AplicarRetardoRadiante(carga, clima);
    benchmark::ClobberMemory();
  }
}

// Una pasada del año, la primera o la segunda.
void Pasada(benchmark::State& estado) {
  const bool primera = estado.range(0) == 1;
  Banco banco(kVivienda);
  Entorno entorno = banco.Dar();
  calculo& caso = CalculoDe(banco.Base());
  const AjustesUso ajustes = ResolverAjustes(banco.Base());
  PrepararCaso(banco.Base(), ajustes, entorno, caso);
  for (auto _ : estado) {
    estado.PauseTiming();
    SimulacionCaso simulacion(banco.Base(), ajustes, caso, banco.mensajes);
    if (!primera) simulacion.Avanzar(kHorasAno);
    estado.ResumeTiming();
    simulacion.Avanzar(kHorasAno);
  }
}

void Plegado(benchmark::State& estado) {
  Banco banco(kVivienda);
  Entorno entorno = banco.Dar();
  CalcularProyecto(banco.gestor, entorno);
  for (auto _ : estado) PlegarCaso(banco.Base(), CalculoDe(banco.Base()));
}

void CalculoEntero(benchmark::State& estado, const std::string& proyecto) {
  for (auto _ : estado) {
    Banco banco(proyecto);
    Entorno entorno = banco.Dar();
    benchmark::DoNotOptimize(CalcularProyecto(banco.gestor, entorno));
  }
}

// El documento HTML de un caso ya calculado: verificación, modelo, relleno y escritura.
void CertificadoHtml(benchmark::State& estado) {
  Banco banco(kVivienda);
  Entorno entorno = banco.Dar();
  CalcularProyecto(banco.gestor, entorno);
  PedidoDocumento pedido;
  pedido.proyecto = "banco.xml";
  pedido.pdf = false;
  for (auto _ : estado)
    benchmark::DoNotOptimize(
        EmitirDocumento(banco.gestor, caso::kViejo, pedido, entorno).html.empty());
}

BENCHMARK(LeerProyecto);
BENCHMARK(LeerFicheroDeClima);
BENCHMARK(ClimaYRespuesta);
BENCHMARK(Cargas);
BENCHMARK(Pasada)->Arg(1)->Arg(2)->ArgName("pasada");
BENCHMARK(Plegado);
BENCHMARK(CertificadoHtml)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CalculoEntero, vivienda, std::string(kVivienda))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CalculoEntero, bloque, std::string("bloque_B3.xml"))
    ->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
