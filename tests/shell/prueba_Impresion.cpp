#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <set>

#include "calculation/EjecutarCalculo.h"
#include "files/CarpetaTemporal.h"
#include "files/ProyectoFichero.h"
#include "shell/EmitirDocumento.h"
#include "shell/OrdenesImpresion.h"
#include "shell/TareaImpresion.h"

namespace novex {
namespace {

namespace fs = std::filesystem;

TEST(OrdenesImpresion, CadaPanelTieneSusDocumentos) {
  DatosGenerales g;
  g.Modo_trabajo = "Nuevo";
  EXPECT_EQ(PanelDeImpresion(true, g), PanelImpresion::PHE1);
  EXPECT_EQ(PanelDeImpresion(false, g), PanelImpresion::Pnuevo1);
  g.Modo_trabajo = "Existente";
  EXPECT_EQ(PanelDeImpresion(true, g), PanelImpresion::PHE1);
  EXPECT_EQ(PanelDeImpresion(false, g), PanelImpresion::PExistente);
  std::set<std::string> ordenes;
  for (const OrdenImpresion& o : OrdenesImpresion())
    ordenes.insert(std::string(NombrePanel(o.panel)) + "/" + std::string(o.control) + "/" +
                   (o.tipo == TipoDocumento::HE ? "HE/" : "Certi/") + std::string(o.clase));
  EXPECT_EQ(ordenes,
            (std::set<std::string>{"PExistente/BB_Imprimir/Certi/EXISTENTES",
                                   "Pnuevo1/Panel6/Certi/NUEVOS. PROYECTO",
                                   "Pnuevo1/Panel7/Certi/NUEVOS. TERMINADO",
                                   "PHE1/BBHE1Simpli/HE/NUEVO", "PHE1/Panel2/HE/EXISTENTE"}));
}

class TareaImpresionTest : public testing::Test {
 protected:
  TareaImpresionTest() {
    AbrirProyecto(gestor, fs::path(NOVEX_RAIZ_DATOS) / "proyectos" / "vivienda_unifamiliar_D3.xml",
                  ModoApertura::Nuevo, mensajes);
  }
  static void Esperar(const TareaImpresion& tarea) {
    while (!tarea.Acabada()) std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  PedidoDocumento Pedido() {
    PedidoDocumento pedido;
    pedido.proyecto = carpeta / "casa.xml";
    pedido.pdf = false;
    return pedido;
  }
  pruebas::CarpetaTemporal carpeta;
  const EspacioTrabajo espacio{NOVEX_PROGRAMA_PRUEBAS};
  RegistroMensajes mensajes;
  GestorEdifActivo gestor;
};

TEST_F(TareaImpresionTest, EscribeSobreUnaCopiaConLosResultadosDelProyecto) {
  FicherosPrograma ficheros(espacio);
  Progreso progreso;
  Entorno entorno{ficheros, mensajes, progreso};
  ASSERT_TRUE(CalcularCaso(gestor, caso::kViejo, entorno));
  gestor.AnadirMejora();
  const calculo& resultado = *gestor.Caso(caso::kViejo)->GetCalculo();
  const float demanda = resultado.resultados.demandaCalefaccion;
  // Lo que ha calculado el proyecto es lo que se escribe: no se vuelve a calcular.
  gestor.Caso(caso::kViejo)->GetCalculo()->resultados.demandaCalefaccion = demanda + 1;
  DocumentoEmitido hecho;
  float usada = 0;
  TareaImpresion tarea(gestor, espacio, [&](GestorEdifActivo& copia, Entorno& suyo) {
    EXPECT_NE(&copia, &gestor);
    EXPECT_EQ(copia.NombreActivo(), gestor.NombreActivo());
    EXPECT_EQ(copia.Caso("Mejora_1")->GetCalculo(), nullptr);
    hecho = EmitirDocumento(copia, caso::kViejo, Pedido(), suyo);
    ResultadosCaso& suyos = copia.Caso(caso::kViejo)->GetCalculo()->resultados;
    usada = suyos.demandaCalefaccion;
    suyos.demandaCalefaccion = 0;
  });
  Esperar(tarea);
  EXPECT_EQ(hecho.estado, Emision::Hecha);
  EXPECT_TRUE(fs::exists(carpeta / "casa.html"));
  EXPECT_EQ(usada, demanda + 1);
  EXPECT_EQ(resultado.resultados.demandaCalefaccion, demanda + 1);
  EXPECT_EQ(tarea.Avance(), TareaImpresion::kAvanceFinal);
  EXPECT_FALSE(tarea.Cancelada());
}

TEST_F(TareaImpresionTest, CanceladaNoEscribeNadaYUnFalloSeDice) {
  std::atomic<bool> pedida{false};
  TareaImpresion tarea(gestor, espacio, [&](GestorEdifActivo& copia, Entorno& entorno) {
    while (!pedida) std::this_thread::yield();
    EmitirDocumento(copia, caso::kViejo, Pedido(), entorno);
  });
  EXPECT_TRUE(tarea.SePuedeCancelar());
  tarea.Cancelar();
  pedida = true;
  Esperar(tarea);
  EXPECT_TRUE(tarea.Cancelada());
  EXPECT_FALSE(fs::exists(carpeta / "casa.html"));
  TareaImpresion rota(gestor, espacio, [](GestorEdifActivo&, Entorno& entorno) {
    entorno.mensajes.Avisar("AVISO", "antes");
    throw ErrorCalculo("no es finito");
  });
  Esperar(rota);
  EXPECT_EQ(rota.Fallo(), "no es finito");
  EXPECT_FALSE(rota.Cancelada());
  EXPECT_EQ(rota.Avisos().size(), 1U);
}

}  // namespace
}  // namespace novex
