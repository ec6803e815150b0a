#include "outputs/HojaCalificacion.h"

#include <gtest/gtest.h>

#include "outputs/CasoPrueba.h"

namespace novex {
namespace {

using pruebas::Textos;

class HojaTest : public testing::Test {
 protected:
  HojaTest() {
    for (auto& th : caso.Resultados().escala.th) th = {4, 6.5F, 10, 13, 16, 20};
    caso.Poner(0, "D3", "Existente");
  }
  HojaCalificacion Hoja(BaseCalificacion base = BaseCalificacion::Emisiones) {
    return HojaDeCalificacion(caso.MostrarCalificado(), base);
  }
  pruebas::CasoDePrueba caso;
};

TEST_F(HojaTest, EscalaDeNuevoYDeExistente) {
  // Un valor igual a un umbral está en la banda peor.
  caso.Resultados().servicio[kACS].porUnidad[kEmisiones][0] = 16;
  FilaCalificacion acs = Hoja().servicios[2];
  EXPECT_EQ(acs.letra, "F");
  EXPECT_EQ(acs.banda, 5U);
  EXPECT_EQ(acs.escala,
            (Textos{"A: < 4.00", "B: 4.00 < 6.50", "C: 6.50 < 10.00", "D: 10.00 < 13.00",
                    "E: 13.00 < 16.00", "F: 16.00 < 20.00", "G: >= 20.00"}));
  caso.Poner(0, "D3", "Nuevo");
  acs = Hoja().servicios[2];
  EXPECT_EQ(acs.letra, "E");
  EXPECT_EQ(acs.banda, 4U);
  EXPECT_EQ(acs.escala, (Textos{"A: < 4.00", "B: 4.00 < 6.50", "C: 6.50 < 10.00",
                                "D: 10.00 < 13.00", "E: >= 13.00", "", ""}));
  // Una fila sin umbrales no enseña escala, y una que no llega a "G" acaba donde sus letras.
  caso.Poner(0, "D3", "Existente");
  auto& th = caso.Resultados().escala.th[static_cast<std::size_t>(Indicador::EmisionesACS)];
  th = {4, 6.5F, 10, 13, 0, 0};
  EXPECT_EQ(Hoja().servicios[2].escala[4], "E: >= 13.00");
  EXPECT_EQ(Hoja().servicios[2].escala[6], "");
  th = {};
  EXPECT_EQ(Hoja().servicios[2].escala, Textos{"( - )"});
  EXPECT_FALSE(Hoja().servicios[2].banda.has_value());
}

TEST_F(HojaTest, FilasYTitulosDeCadaBase) {
  auto& r = caso.Resultados();
  r.demandaCalefaccion = 1;
  r.demandaRefrigeracion = 2;
  for (const Servicio s : {kACS, kCalefaccion, kRefrigeracion, kVentilacion, kIluminacion}) {
    r.servicio[s].porUnidad[kEmisiones][0] = 10.0F + static_cast<float>(s);
    r.servicio[s].porUnidad[kPrimariaNoRenovable][0] = 20.0F + static_cast<float>(s);
  }
  r.total[kEmisiones] = 50;
  r.total[kPrimariaNoRenovable] = 60;
  const auto valores = [](const std::vector<FilaCalificacion>& filas) {
    std::vector<float> v;
    for (const auto& fila : filas) v.push_back(fila.valor.value_or(-1));
    return v;
  };
  HojaCalificacion hoja = Hoja();
  EXPECT_EQ(valores(hoja.demanda), (std::vector<float>{1, 2}));
  EXPECT_EQ(valores(hoja.servicios), (std::vector<float>{11, 12, 10}));
  EXPECT_EQ(hoja.total.valor, 50.0F);
  EXPECT_EQ(hoja.total.nombre, "Emisiones Totales CO2 (kg/m2 año)");
  caso.Poner(3, "D3", "Existente");
  hoja = Hoja(BaseCalificacion::PrimariaNoRenovable);
  EXPECT_EQ(valores(hoja.servicios), (std::vector<float>{21, 22, 20, 24}));
  EXPECT_EQ(hoja.servicios[3].nombre, "Iluminación");
  EXPECT_EQ(hoja.total.valor, 60.0F);
  EXPECT_EQ(hoja.total.nombre, "Energía primaria no renov.(kWh/m2 año)");
}

TEST_F(HojaTest, ViviendaDeZonaSinRefrigeracion) {
  caso.Poner(1, "D1", "Existente");
  HojaCalificacion hoja = Hoja();
  for (const FilaCalificacion& fila : {hoja.demanda[1], hoja.servicios[1]}) {
    EXPECT_EQ(fila.TextoValor(), "( - )");
    EXPECT_EQ(fila.letra, "( - )");
    EXPECT_EQ(fila.escala, Textos{"( - )"});
  }
  EXPECT_EQ(hoja.notaZona, "No se contabiliza refrigeración por estar en zona D1");
  EXPECT_EQ(TablasHoja(hoja)[1].notas, Textos{hoja.notaZona});
  caso.PonerSimulacionLibre();
  hoja = Hoja();
  EXPECT_FALSE(hoja.rellena);
  EXPECT_EQ(hoja.notaZona, "");
  EXPECT_TRUE(TablasHoja(hoja).empty());
  // Un terciario sí se califica.
  caso.Generales([](DatosGenerales& g) { g.Tiposimulacion = "Certificacion"; });
  caso.Poner(3, "D1", "Existente");
  EXPECT_EQ(Hoja().demanda[1].letra, "A");
  EXPECT_EQ(Hoja().notaZona, "");
}

TEST_F(HojaTest, HorasFueraDeConsigna) {
  auto& r = caso.Resultados();
  r.horasFueraCalefaccion = 30;
  r.horasFueraRefrigeracion = 10;
  EXPECT_EQ(Hoja().horas.texto, "");
  r.horasOcupacion = 1000;
  EXPECT_EQ(Hoja().horas.texto,
            "Nº horas fuera consigna = 40 h lo que supone un 4.00 % de las horas de ocupación");
  EXPECT_FALSE(Hoja().horas.noValida);
  r.horasFueraRefrigeracion = 11;
  EXPECT_EQ(Hoja().horas.texto,
            "Porcentaje horas fuera consigna = 4.10 %. Certificación no válida");
  EXPECT_TRUE(Hoja().horas.noValida);
  CasoCalculado mejora = caso.MostrarCalificado();
  mejora.nombre = "Mejora_1";
  EXPECT_EQ(TextoHorasFuera(mejora).texto, "");
  const auto avisos = [this] {
    const auto filas = Hoja().servicios;
    return Textos{filas[0].aviso, filas[1].aviso, filas[2].aviso};
  };
  const std::string no = "No existe equipos";
  EXPECT_EQ(avisos(), (Textos{no, no, no}));
  // El de los tres servicios no cuenta para calefacción.
  caso.AnadirSistema("ACS+Calefaccion+Refrigeracion");
  EXPECT_EQ(avisos(), (Textos{no, "", ""}));
  caso.edificio->BorrarSistema(0);
  caso.AnadirSistema("ACS+Calefaccion");
  EXPECT_EQ(avisos(), (Textos{"", no, ""}));
  caso.AnadirSistema("Refrigeracion");
  EXPECT_EQ(avisos(), (Textos{"", "", ""}));
  EXPECT_EQ(TablasHoja(Hoja())[1].filas[0].size(), TablasHoja(Hoja())[1].cabeceras.size());
}

}  // namespace
}  // namespace novex
