#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "calculation/ProgramaPrueba.h"
#include "demand/RespuestaZona.h"
#include "files/ProyectoFichero.h"

namespace novex {
namespace {

using pruebas::CajaCaliente;
using pruebas::ProgramaPrueba;

// Ventilación de la caja: 300 m3 × 0,6 1/h de aire a 0 °C y 50 % (1,2886 kg/m3) son 65,59 W/K.
constexpr double kVentilacion = 1.28861 * 300 * 0.6 * 1.018 / 3.6;
// 20 m2 de ventana con U = 3 de día; de noche la cortina del 30 % la baja a 3/1,495.
constexpr double kVentanasDia = 60;
constexpr double kVentanasNoche = 60 * (0.3 / 1.495 + 0.7);
constexpr double kUnoPorMil = 0.001;

TEST(RegimenPermanente, LaCargaEsLaConductanciaPorElSalto) {
  ProgramaPrueba programa;
  const auto caja = CajaCaliente();
  ASSERT_TRUE(programa.Calcular(*caja));
  EXPECT_TRUE(programa.mensajes.recibidos.empty());
  const calculo& c = *caja->GetCalculo();
  const double resto = 100 + 20 + kVentilacion;
  double ano = 0;
  for (int h = 1; h <= kHorasAno; ++h) ano -= static_cast<double>(c.zona.DCAL[h]);
  for (const int dia : {20, 340})
    for (const auto& [hora, ventanas] : {std::pair{3, kVentanasNoche},
                                         {8, kVentanasDia},
                                         {15, kVentanasDia},
                                         {20, kVentanasNoche}}) {
      const double esperada = 21 * (resto + ventanas);
      EXPECT_NEAR(c.zona.cargaCalefaccion[dia * 24 + hora] * -1000, esperada,
                  kUnoPorMil * esperada);
      EXPECT_EQ(c.zona.TSL[dia * 24 + hora], 21.0F);
    }
  // La hora 1 calienta además las superficies, que estaban a 20 °C: 120 × 5,0613 + 100 × (7,7115 +
  // 4,2995 + 15,2084) W/K menos los 100 del régimen. El aire de la zona no cuenta en ella.
  const double primera = 21 * (resto + kVentanasNoche) + 3329.29 - 100;
  EXPECT_NEAR(c.zona.cargaCalefaccion[1] * -1000, primera, kUnoPorMil * primera);
  // La parte del aire es la suya y cada elemento lleva lo que pierde.
  const int h = 480 + 12;
  EXPECT_NEAR(c.zona.DVENT[h] * 1000, 21 * kVentilacion, kUnoPorMil * 21 * kVentilacion);
  EXPECT_NEAR(c.valores.at("0-PuentesT").valor[h], -420, 0.1);
  EXPECT_NEAR(c.valores.at("0-Ventilacion").valor[h], -21 * kVentilacion, 2);
  EXPECT_NEAR(c.valores.at("0-S-G-1").valor[h], -21 * 60, 0.1);
  // El año: los meses de verano (122 días) cambian las horas de la cortina, que baja entonces de 6
  // a 21 h; en los demás está abierta de 8 a 15 h.
  const double horasDia = 122 * 8 + 243 * 8;
  const double anual =
      21 * (resto * 8760 + kVentanasDia * horasDia + kVentanasNoche * (8760 - horasDia)) * 0.001;
  EXPECT_NEAR(ano, anual, 2 * kUnoPorMil * anual);
  EXPECT_NEAR(c.resultados.demandaCalefaccion, ano / 100, 1e-3 * ano / 100);
  EXPECT_EQ(c.resultados.demandaRefrigeracion, 0.0F);
  // La altura libre reduce lo que los cerramientos reciben de fuera (K × F × (Te - 22,5)), no lo
  // que la zona les da.
  const auto conForjados = CajaCaliente();
  pruebas::CambiarConstruccion(*conForjados, [](Construccion& k) { k.Espesor_forjado = 0.3F; });
  ASSERT_TRUE(programa.Calcular(*conForjados));
  const double conAltura = 100 * (0.9 * 22.5 - 1.5) + 21 * (20 + kVentilacion + kVentanasDia);
  EXPECT_NEAR(conForjados->GetCalculo()->zona.cargaCalefaccion[492] * -1000, conAltura,
              kUnoPorMil * conAltura);
}

TEST(RegimenPermanente, ConCalorDentroSeRefrigeraLaDiferencia) {
  ProgramaPrueba programa({30, 50});
  const auto caja = CajaCaliente();
  pruebas::CambiarGenerales(*caja, [](DatosGenerales& g) {
    for (std::size_t h = 1; h <= 24; ++h) {
      g.perfiles.tabla[C1][0][h] = 2;
      g.perfiles.tabla[CIlu][0][h] = 3;
      g.perfiles.tabla[CEq][0][h] = 5;
    }
  });
  ASSERT_TRUE(programa.Calcular(*caja));
  // Aire a 30 °C y 50 % (2123 Pa de vapor): (101325 - 2123)/(287 × 303,15) = 1,14022 kg/m3.
  const double aire = 1.14022 * 300 * 0.6 * 1.018 / 3.6;
  const double esperada = 4 * (100 + 20 + kVentanasDia + aire) + 100 * 10;
  const calculo& c = *caja->GetCalculo();
  EXPECT_NEAR(c.zona.cargaRefrigeracion[492] * 1000, esperada, kUnoPorMil * esperada);
  EXPECT_EQ(c.zona.TSL[492], 26.0F);
  EXPECT_NEAR(c.zona.DVENT[492] * 1000, -4 * aire, 1);
  EXPECT_EQ(c.resultados.horasOcupacion, 8760.0F);
  // En C1, D1 y E1 una vivienda no tiene refrigeración y la zona se calienta sola.
  const auto sinFrio = CajaCaliente();
  sinFrio->SetDatosGenerales(caja->GetDatosGenerales());
  pruebas::CambiarLugar(*sinFrio, [](Localizacion& lugar) { lugar.ZonaClimatica = "E1"; });
  std::filesystem::copy(programa.Datos() / "../databaseCTE/ZonaD3.met",
                        programa.Datos() / "../databaseCTE/ZonaE1.met");
  ASSERT_TRUE(programa.Calcular(*sinFrio));
  EXPECT_EQ(sinFrio->GetCalculo()->resultados.demandaRefrigeracion, 0.0F);
  // Pocos días después de las 12 h del día 21 todo el calor sale: 4 K × conductancia + 1000 W = 0.
  EXPECT_GT(sinFrio->GetCalculo()->zona.TSL[492], 32.0F);
}

// Con un solo mes de calefacción el edificio flota los demás hacia el exterior.
TEST(RegimenPermanente, SinConsignasLaZonaFlotaHastaElExterior) {
  ProgramaPrueba programa;
  const auto caja = CajaCaliente();
  pruebas::CambiarGenerales(*caja, [](DatosGenerales& g) {
    g.perfiles.AccionMes.fill("Nada");
    g.perfiles.AccionMes[12] = "Sólo Cale";
  });
  ASSERT_TRUE(programa.Calcular(*caja));
  const SeriesZona& zona = caja->GetCalculo()->zona;
  EXPECT_GT(zona.TSL[1], 10.0F);  // parte de 20 °C
  EXPECT_NEAR(zona.TSL[8016], 0, 0.01);
  EXPECT_EQ(zona.DCAL[8016], 0.0F);
  EXPECT_EQ(zona.TSL[8017], 21.0F);
  // Arrancar en frío cuesta más que mantener.
  EXPECT_LT(zona.DCAL[8017], 3 * zona.DCAL[8760]);
}

// El balance de una vivienda entera, hora a hora y en el año. En cada hora suman la carga:
//  - los elementos del caso (opacos sobre 22,5 °C, huecos con su conducción, cargas, puentes,
//  aire);
//  - K × 22,5, que devuelve los opacos a su nivel;
//  - lo que las superficies interiores toman y devuelven: la suma de sus factores de respuesta por
//    las temperaturas de las 24 horas;
//  - el calor que guarda el aire de la zona.
// En las horas sin carga entra además la mitad de la potencia de los ventiladores.
TEST(BalanceDelAno, CierraEnUnaVivienda) {
  const auto casos = std::filesystem::path(NOVEX_RAIZ_PRUEBAS) / "casos";
  GestorEdifActivo gestor;
  RegistroMensajes mensajes;
  AbrirProyecto(gestor, casos / "proyectos/v01_vivienda_D3.xml", ModoApertura::Nuevo, mensajes);
  FicherosPrograma ficheros{EspacioTrabajo{casos / "programa"}};
  Progreso progreso;
  Entorno entorno{ficheros, mensajes, progreso};
  ASSERT_TRUE(CalcularProyecto(gestor, entorno));
  const Edificio& vivienda = gestor.Activo();
  const calculo& c = *vivienda.GetCalculo();
  const RespuestaZona respuesta = PrepararRespuestaZona(vivienda, c.resultados.Uefectiva);
  const Localizacion& lugar = vivienda.GetLocalizacion();
  const auto T = [&](int h) { return h < 1 ? 20.0 : static_cast<double>(c.zona.TSL[h]); };
  // Aire de la zona a media humedad: 25 °C en verano y 20 °C en invierno.
  const double P = 101325 * std::exp(-0.0001184 * lugar.asnm);
  const double porDensidad =
      static_cast<double>(c.resultados.volumenTotal * c.resultados.alturaLibre) * 1.018 / 3.6;
  const double Caverano = porDensidad * (P - 0.5 * 3169.2) / (287 * 298.15);
  const double Cainvierno = porDensidad * (P - 0.5 * 2338.8) / (287 * 293.15);

  double elementos = 0, acumulado = 0, cargas = 0, bruto = 0, peor = 0;
  for (int h = 1; h <= kHorasAno; ++h) {
    double deElementos = static_cast<double>(respuesta.K) * 22.5;
    for (const auto& [clave, v] : c.valores) {
      deElementos += static_cast<double>(v.valor[h]);
      bruto += std::fabs(static_cast<double>(v.valor[h]));
    }
    double deHistoria = 0;
    for (int k = 0; k < static_cast<int>(kTerminosZona); ++k)
      deHistoria += static_cast<double>(respuesta.Total(static_cast<std::size_t>(k))) * T(h - k);
    const double Ca = lugar.EsVerano(HoraDelMes(h)) ? Caverano : Cainvierno;
    const double carga =
        1000.0 * static_cast<double>(c.zona.cargaCalefaccion[h] + c.zona.cargaRefrigeracion[h]);
    // La primera hora no cuenta lo que guarda el aire en su carga.
    const double deAire = h == 1 && carga != 0.0 ? 0.0 : Ca * (T(h - 1) - T(h));
    double ventilador = carga == 0.0 ? 0.5 * static_cast<double>(c.zona.CV[h]) : 0.0;
    double resto = deElementos + deHistoria + deAire + ventilador - carga;
    // Una zona que solo pasa de la consigna por el calor del ventilador se queda en ella sin carga:
    // el balance cierra con menos de ese calor.
    if (carga == 0.0 && c.carga.TRR[h] > 0.0F && c.zona.TSL[h] == c.carga.TRR[h]) {
      EXPECT_GE(resto, 0.0) << h;
      EXPECT_LE(resto, ventilador) << h;
      ventilador -= resto;
      resto = 0;
    }
    peor = std::max(peor, std::fabs(resto));
    elementos += deElementos + ventilador - static_cast<double>(respuesta.K) * T(h);
    acumulado += deHistoria + static_cast<double>(respuesta.K) * T(h) + deAire;
    cargas += carga;
  }
  EXPECT_LT(peor, 1.0) << "W en la peor hora";
  EXPECT_NEAR(elementos + acumulado, cargas, 1e-4 * bruto);
  // En el año lo que la masa guarda se devuelve: solo queda la diferencia entre sus dos extremos.
  EXPECT_NEAR(elementos, cargas, 1e-3 * bruto);
  const double area = static_cast<double>(vivienda.GetRecinto(0).Suelo_habitable_m2);
  EXPECT_NEAR(
      cargas / area * 0.001,
      static_cast<double>(c.resultados.demandaRefrigeracion - c.resultados.demandaCalefaccion),
      0.01);
}

}  // namespace
}  // namespace novex
