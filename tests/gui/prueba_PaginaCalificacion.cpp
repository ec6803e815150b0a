#include <QAction>
#include <QClipboard>
#include <QMenu>
#include <QToolButton>

#include "gui/ResultadosPrueba.h"
#include "outputs/HojaCalificacion.h"
#include "shell/gui/EtiquetaEnergetica.h"

namespace novex::gui::pruebas {
namespace {

class PaginaCalificacionTest : public ResultadosTest {
 protected:
  static void EsFila(const EtiquetaEnergetica& etiqueta, const FilaCalificacion& fila) {
    EXPECT_EQ(S(etiqueta.Titulo()), fila.nombre);
    EXPECT_EQ(S(etiqueta.Valor()), fila.TextoValor()) << fila.nombre;
    EXPECT_EQ(S(etiqueta.Letra()), fila.letra) << fila.nombre;
    EXPECT_EQ(S(etiqueta.Aviso()), fila.aviso) << fila.nombre;
    std::vector<std::string> escala;
    for (const QString& banda : etiqueta.Escala()) escala.push_back(S(banda));
    EXPECT_EQ(escala, fila.escala) << fila.nombre;
  }
  std::vector<const EtiquetaEnergetica*> EtiquetasVistas() {
    std::vector<const EtiquetaEnergetica*> vistas;
    for (auto* e : ventana->PaginaDe(Destino::Certificacion)->findChildren<EtiquetaEnergetica*>())
      if (e->isVisible()) vistas.push_back(e);
    return vistas;
  }
  // Pone el perfil del caso con unas horas fuera de consigna por cada 100 de ocupación.
  void PonerHoras(float fuera) {
    auto& r = sesion.GestorParaCalcular().Activo().GetCalculo()->resultados;
    r.horasOcupacion = 100;
    r.horasFueraCalefaccion = fuera;
    r.horasFueraRefrigeracion = 0;
    ventana->Mostrar(Destino::Certificacion);
  }
};

TEST_F(PaginaCalificacionTest, LaHojaEsLaDelCaso) {
  for (const char* ejemplo :
       {"adosada_C1.xml", "hotel_24h_A3.xml", "oficina_VRV_B4.xml", "casa_antigua_E1.xml"}) {
    SCOPED_TRACE(ejemplo);
    Entrar(ejemplo, "Calificación");
    for (std::size_t b = 0; b < kTextoBaseCalificacion.size(); ++b) {
      Marcar("RGCalificacion", b);
      const auto hoja = HojaDeCalificacion(Caso(), static_cast<BaseCalificacion>(b));
      std::vector<FilaCalificacion> filas = hoja.demanda;
      filas.insert(filas.end(), hoja.servicios.begin(), hoja.servicios.end());
      filas.push_back(hoja.total);
      const auto etiquetas = EtiquetasVistas();
      ASSERT_EQ(etiquetas.size(), filas.size());
      for (std::size_t i = 0; i < filas.size(); ++i) EsFila(*etiquetas[i], filas[i]);
      QStringList titulos;
      for (const QLabel* t : ventana->PaginaDe(Destino::Certificacion)->findChildren<QLabel*>())
        if (t->isVisible()) titulos << t->text();
      EXPECT_TRUE(titulos.contains(Q(hoja.tituloDemanda)));
      EXPECT_TRUE(titulos.contains(Q(hoja.tituloServicios)));
      EXPECT_EQ(titulos.contains(Q(hoja.notaZona)), !hoja.notaZona.empty());
      EXPECT_EQ(S(Buscar<QLabel>("horasFuera")->text()), hoja.horas.texto);
    }
  }
}

TEST_F(PaginaCalificacionTest, LaHojaSeCopiaYSeExporta) {
  Entrar("adosada_C1.xml", "Calificación");  // con nota de la zona
  auto* menu = Buscar<QToolButton>("menuHoja");
  ASSERT_TRUE(menu->isVisible());
  const auto orden = [&](const char* texto) {
    for (QAction* o : menu->menu()->actions())
      if (o->text() == texto) return o;
    return static_cast<QAction*>(nullptr);
  };
  orden("Copiar")->trigger();
  const QStringList copiado = QApplication::clipboard()->text().split('\n');
  EXPECT_EQ(copiado[0], "Demanda sensible (kWh/m2 año)");
  ASSERT_GE(copiado.size(), 4);
  EXPECT_EQ(copiado[2].split('\t').first(), "Calefacción");
  EXPECT_EQ(copiado[2].split('\t')[1], Q(HojaDeCalificacion(Caso(), {}).demanda[0].TextoValor()));
  EXPECT_TRUE(copiado.join(' ').contains("No se contabiliza refrigeración por estar en zona C1"));
  ConDialogo<QFileDialog>([&] { orden("Exportar…")->trigger(); },
                          [&](QFileDialog& d) {
                            d.findChild<QLineEdit*>("fileNameEdit")->setText(Q(carpeta / "hoja"));
                            static_cast<QDialog&>(d).accept();
                          });
  const QString escrito = Q(LeerFichero(carpeta / "hoja.txt"));
  EXPECT_TRUE(escrito.startsWith("Demanda sensible (kWh/m2 año);\nServicio;Valor;Letra;Escala;"));
  EXPECT_TRUE(escrito.contains("\nEmisiones Totales CO2 (kg/m2 año);"));
}

// La flecha va en el color de su letra y a la altura de su banda, y las que no hay quedan en
// blanco.
TEST_F(PaginaCalificacionTest, LaLetraSePintaALaAlturaDeSuBanda) {
  EtiquetaEnergetica etiqueta("Calefacción");
  etiqueta.resize(300, 300);
  const auto color = [&](int y) { return etiqueta.grab().toImage().pixelColor(290, y).rgb(); };
  const auto filasDe = [&](const QString& letra) {
    int primera = -1, ultima = -1;
    for (int y = 0; y < 300; ++y)
      if (color(y) == ColorLetra(letra).rgb()) {
        if (primera < 0) primera = y;
        ultima = y;
      }
    return std::pair(primera, ultima);
  };
  QStringList escala;
  for (const char c : std::string("ABCDE")) escala << QString("%1: 1 < 2").arg(QChar(c));
  escala << QString() << QString();
  etiqueta.Poner("A", "1.00", escala, {});
  const auto a = filasDe("A");
  etiqueta.Poner("C", "1.00", escala, {});
  const auto c = filasDe("C");
  ASSERT_GE(a.first, 0);
  EXPECT_EQ(filasDe("A").first, -1);
  EXPECT_GT(c.first - a.first, 2 * (a.second - a.first) - 2);
  etiqueta.Poner("( - )", "( - )", {"( - )"}, "No existe equipos");
  for (const char* letra : {"A", "C", "G"}) EXPECT_EQ(filasDe(letra).first, -1);
}

TEST_F(PaginaCalificacionTest, LasHorasFueraDeConsignaSeMarcanPorEncimaDelCuatroPorCiento) {
  Entrar("hotel_24h_A3.xml", "Calificación");
  auto* horas = Buscar<QLabel>("horasFuera");
  PonerHoras(4);
  EXPECT_EQ(horas->property("papel"), "nota");
  EXPECT_EQ(horas->text(),
            "Nº horas fuera consigna = 4 h lo que supone un 4.00 % de las horas de ocupación");
  PonerHoras(5);
  EXPECT_EQ(horas->property("papel"), "aviso");
  EXPECT_EQ(horas->text(), "Porcentaje horas fuera consigna = 5.00 %. Certificación no válida");
  sesion.GestorParaCalcular().Activo().GetCalculo()->resultados.horasOcupacion = 0;
  ventana->Mostrar(Destino::Certificacion);
  EXPECT_FALSE(horas->isVisible());
}

TEST_F(PaginaCalificacionTest, SinPoderCalcularNoSeEnsenanResultadosDeOtro) {
  Entrar("adosada_C1.xml", "Calificación");
  ASSERT_FALSE(EtiquetasVistas().empty());
  // Pasa las comprobaciones y no hay año de clima de esa zona.
  const auto zona = [&](const char* cual) {
    ventana->Contexto().Editar("zona", [cual](Edificio& e) {
      Localizacion l = e.GetLocalizacion();
      l.ZonaClimatica = cual;
      e.SetLocalizacion(l);
    });
  };
  zona("Z9");
  EXPECT_TRUE(EtiquetasVistas().empty());
  EXPECT_TRUE(Buscar<QLabel>("falloResultados")->isVisible());
  zona("D3");
  EXPECT_FALSE(EtiquetasVistas().empty());
  EXPECT_FALSE(Buscar<QLabel>("falloResultados")->isVisible());
}

TEST_F(PaginaCalificacionTest, UnaSimulacionLibreAbreEnLosMesesYNoSeCalifica) {
  ASSERT_TRUE(ventana->Abrir(Ejemplo("hotel_24h_A3.xml")));
  ventana->Contexto().Editar("libre", [](Edificio& e) {
    DatosGenerales g = e.GetDatosGenerales();
    g.Tiposimulacion = "Simulacion";
    e.SetDatosGenerales(g);
  });
  ventana->Mostrar(Destino::Certificacion);
  EXPECT_TRUE(Buscar<QComboBox>("RGSeleccion")->isVisible());
  EXPECT_FALSE(HayPestana("Objeto_Referencia"));
  IrAPestana("Calificación");
  EXPECT_TRUE(EtiquetasVistas().empty());
  EXPECT_FALSE(Buscar<SelectorOpciones>("RGCalificacion")->isVisible());
  EXPECT_EQ(S(Buscar<QLabel>("sinHoja")->text()), kSinCalificacion);
  EXPECT_TRUE(Buscar<QLabel>("sinHoja")->isVisible());
}

}  // namespace
}  // namespace novex::gui::pruebas
