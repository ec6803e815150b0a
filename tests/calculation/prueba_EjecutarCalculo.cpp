#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "base/ErrorFichero.h"
#include "base/FicheroSeguro.h"
#include "base/NumeroTexto.h"
#include "calculation/EjecutarCalculo.h"
#include "calculation/ProgramaPrueba.h"
#include "demand/FicherosCaso.h"
#include "demand/RespuestaZona.h"
#include "files/ProyectoFichero.h"

namespace novex {
namespace {

using pruebas::CajaCaliente;
using pruebas::ProgramaPrueba;
using testing::HasSubstr;

TEST(EjecutarCalculo, UnCasoCalculadoNoSeRepite) {
  ProgramaPrueba programa;
  const auto caja = CajaCaliente();
  ASSERT_TRUE(programa.Calcular(*caja));
  const calculo* primero = caja->GetCalculo().get();
  const float demanda = primero->resultados.demandaCalefaccion;
  ASSERT_GT(demanda, 100.0F);
  // Ni con el edificio cambiado ni sin los ficheros.
  caja->GetComposicion(ranura::MuroExt1).U = 2;
  std::filesystem::remove_all(programa.Datos());
  EXPECT_TRUE(programa.Calcular(*caja));
  EXPECT_EQ(caja->GetCalculo().get(), primero);
  EXPECT_EQ(primero->resultados.demandaCalefaccion, demanda);
  // Con un `calculo` nuevo sí hacen falta.
  caja->QuitarCalculo();
  EXPECT_THROW(programa.Calcular(*caja), ErrorFichero);
}

TEST(EjecutarCalculo, DosCalculosDanLoMismoBitABit) {
  ProgramaPrueba programa({-3.5F, 80});
  const auto caja = CajaCaliente();
  const auto copia = caja->Clonar();
  ASSERT_TRUE(programa.Calcular(*caja));
  ASSERT_TRUE(programa.Calcular(*copia));
  const calculo& a = *caja->GetCalculo();
  const calculo& b = *copia->GetCalculo();
  ASSERT_NE(&a, &b);
  EXPECT_EQ(a.zona.TSL, b.zona.TSL);
  EXPECT_EQ(a.zona.WL, b.zona.WL);
  EXPECT_EQ(a.zona.DCAL, b.zona.DCAL);
  EXPECT_EQ(a.clima.MLIGERO, b.clima.MLIGERO);
  for (std::size_t s = 0; s < kServicios; ++s)
    EXPECT_EQ(a.resultados.servicio[s].porUnidad, b.resultados.servicio[s].porUnidad);
  EXPECT_EQ(a.resultados.total, b.resultados.total);
  ASSERT_EQ(a.valores.size(), b.valores.size());
  for (const auto& [clave, v] : a.valores) EXPECT_EQ(v.valor, b.valores.at(clave).valor) << clave;
}

TEST(EjecutarCalculo, SoloElModoCorrienteQuitaLosServiciosForzados) {
  ProgramaPrueba programa;
  const auto forzar = [](Edificio& edificio) -> ResultadosCaso& {
    ResultadosCaso& r = CalculoDe(edificio).resultados;
    r.forzados.CasoCalefaccion = {"CasoConcreto", "Electricidad", 3};
    r.forzados.ExtraRMuros = 1;
    return r;
  };
  const auto bucle = CajaCaliente();
  ResultadosCaso& conElla = forzar(*bucle);
  ASSERT_TRUE(programa.Calcular(*bucle, caso::kViejo, kModoBucle));
  EXPECT_TRUE(conElla.forzados.CasoCalefaccion.Concreto());
  const float final = conElla.servicio[kCalefaccion].porUnidad[kFinal][0];
  EXPECT_NEAR(final, conElla.demandaCalefaccion / 3, 1e-3F * final);

  const auto corriente = CajaCaliente();
  ResultadosCaso& sinElla = forzar(*corriente);
  ASSERT_TRUE(programa.Calcular(*corriente));
  EXPECT_FALSE(sinElla.forzados.CasoCalefaccion.Concreto());
  EXPECT_NEAR(sinElla.servicio[kCalefaccion].porUnidad[kFinal][0],
              sinElla.demandaCalefaccion / 0.92, 1e-3 * sinElla.demandaCalefaccion);
  // Las demás medidas siguen en los dos: los 120 m2 de muro bajan de U 0,5 a 1/3.
  EXPECT_EQ(sinElla.demandaCalefaccion, conElla.demandaCalefaccion);
  const auto base = CajaCaliente();
  ASSERT_TRUE(programa.Calcular(*base));
  EXPECT_NEAR(base->GetCalculo()->resultados.demandaCalefaccion - sinElla.demandaCalefaccion,
              120 * (0.5 - 1.0 / 3) * 21 * 8.76 / 100, 0.15);
}

TEST(EjecutarCalculo, SinClimaAvisaYNoCalcula) {
  ProgramaPrueba programa;
  const auto caja = CajaCaliente();
  pruebas::CambiarLugar(*caja, [](Localizacion& lugar) { lugar.ZonaClimatica = "A4"; });
  EXPECT_FALSE(programa.Calcular(*caja));
  EXPECT_THAT(programa.mensajes.recibidos,
              testing::ElementsAre(Mensaje{"fichero entrada datos ambientales",
                                           "No se pudo abrir el fichero .met"}));
  EXPECT_FALSE(caja->GetCalculo()->Calculado());
  EXPECT_EQ(caja->GetLocalizacion().latitud, 0.0F);
}

std::string MensajeDe(Edificio& edificio) {
  ProgramaPrueba programa;
  try {
    programa.Calcular(edificio);
  } catch (const ErrorCalculo& error) {
    return error.what();
  }
  return {};
}

TEST(EjecutarCalculo, DatosQueNoSePuedenCalcular) {
  static constexpr float inf = std::numeric_limits<float>::infinity();
  static constexpr float nan = std::numeric_limits<float>::quiet_NaN();
  using E = Edificio;
  // Los que se repasan se dicen por su nombre; los demás, sin él, se ven en el resultado.
  const std::pair<void (*)(E&), const char*> casos[] = {
      {[](E& e) { e.GetRecinto(0).Suelo_habitable_m2 = 0; }, "Suelo_habitable_m2"},
      {[](E& e) { e.GetRecinto(0).Volumen_total_m3 = 0; }, "Volumen_total_m3"},
      {[](E& e) { e.GetRecinto(0).Volumen_total_m3 = -300; }, "Volumen_total_m3"},
      {[](E& e) { e.GetComposicion(ranura::TechoExt1).U = inf; }, "U de TechoExt1"},
      {[](E& e) { e.GetRecinto(0).Muro_ext_m2[2][este] = nan; }, "Muro_ext_m2"},
      {[](E& e) { e.GetHuecos(0).FS_cristal_tanto_por_uno = nan; }, "FS_cristal_tanto_por_uno"},
      {[](E& e) { e.GetRecinto(0).Suelo_vacio_sanitario_m2[0] = inf; }, ""},
      {[](E& e) { e.GetRecinto(0).Suelo_adiabatico_m2[0] = inf; }, ""},
      {[](E& e) { e.GetHuecos(0).Valor_multiplicativo_U_invierno = inf; }, ""},
      {[](E& e) { pruebas::CambiarConstruccion(e, [](auto& c) { c.Espesor_forjado = inf; }); }, ""},
      {[](E& e) { pruebas::CambiarGenerales(e, [](auto& g) { g.Valorn50 = inf; }); }, ""}};
  EXPECT_EQ(MensajeDe(*CajaCaliente()), "");
  for (std::size_t i = 0; i < std::size(casos); ++i) {
    const auto caja = CajaCaliente();
    casos[i].first(*caja);
    const std::string mensaje = MensajeDe(*caja);
    EXPECT_NE(mensaje, "") << i;
    EXPECT_THAT(mensaje, HasSubstr(casos[i].second)) << i;
  }
}

TEST(EjecutarCalculo, UnRendimientoNuloSeDiceConSuNombre) {
  ProgramaPrueba programa;
  EscribirFichero(programa.Datos() / "Defecto.xml",
                  "<DEFECTO><DEFECTO RENDACSR=\"0.92\" RENDCALER=\"0\" RENDREFRIR=\"2.6\"/>"
                  "</DEFECTO>");
  const auto caja = CajaCaliente();
  EXPECT_THAT([&] { programa.Calcular(*caja); },
              testing::Throws<ErrorFichero>(
                  testing::AllOf(testing::Property(&ErrorFichero::what, HasSubstr("RENDCALER")),
                                 testing::Field(&ErrorFichero::ruta, HasSubstr("Defecto.xml")))));
}

TEST(EjecutarCalculo, UnDiaSinClasePideElUsoDePartida) {
  ProgramaPrueba programa;
  const auto caja = CajaCaliente();
  pruebas::CambiarGenerales(*caja, [](DatosGenerales& g) { g.perfiles.calendario[364] = 12; });
  EXPECT_THROW(programa.Calcular(*caja), ErrorFichero);
  std::string uso = "<CargaInternaNOVEX4.0>";
  for (int h = 1; h <= kHorasAno; ++h)
    uso += "<Item QOCUPSR=\"4\" QILUR=\"0\" QEQR=\"0\" NRR=\"100\" TCR=\"18\" TRR=\"26\"/>";
  EscribirFichero(programa.Datos() / "NuevoUsoControl.xml", uso + "</CargaInternaNOVEX4.0>");
  ASSERT_TRUE(programa.Calcular(*caja));
  const calculo& c = *caja->GetCalculo();
  EXPECT_EQ(c.carga.TCR[8760], 18.0F);
  EXPECT_EQ(c.carga.TCR[8736], 21.0F);
  EXPECT_EQ(c.resultados.horasOcupacion, 24.0F);
}

TEST(CalcularProyecto, CalculaTodosLosCasosSinCambiarElActivo) {
  ProgramaPrueba programa;
  GestorEdifActivo gestor;
  gestor.NuevoProyecto();
  const auto poner = [&](float U) {
    Edificio& e = gestor.Activo();
    const auto caja = CajaCaliente();
    e.GetRecinto(0) = caja->GetRecinto(0);
    e.SetDatosGenerales(caja->GetDatosGenerales());
    e.SetLocalizacion(caja->GetLocalizacion());
    e.GetComposicion(ranura::MuroExt1).U = U;
  };
  poner(1);
  gestor.CrearCasoVacio("Mejora_1");
  poner(0.3F);
  gestor.ActivarCaso(caso::kViejo);
  FicherosPrograma ficheros{EspacioTrabajo{programa.Datos().parent_path()}};
  // El avance es el de todos, de 0 a 100 sin volver atrás.
  struct Registro : Progreso {
    void Avanzar(int porcentaje) override { vistos.push_back(porcentaje); }
    std::vector<int> vistos;
  } progreso;
  Entorno entorno{ficheros, programa.mensajes, progreso};
  ASSERT_TRUE(CalcularProyecto(gestor, entorno).empty());
  EXPECT_TRUE(gestor.EsCasoActivo(caso::kViejo));
  EXPECT_GT(gestor.Caso("Viejo")->GetCalculo()->resultados.demandaCalefaccion,
            gestor.Caso("Mejora_1")->GetCalculo()->resultados.demandaCalefaccion + 50.0F);
  ASSERT_GE(progreso.vistos.size(), 24U);
  EXPECT_TRUE(std::is_sorted(progreso.vistos.begin(), progreso.vistos.end()));
  for (const int p : progreso.vistos) EXPECT_TRUE(p >= 0 && p <= 100);
  // El que no se puede calcular no impide los demás.
  for (const char* nombre : {"Viejo", "Mejora_1"}) gestor.Caso(nombre)->QuitarCalculo();
  Localizacion sinClima = gestor.Activo().GetLocalizacion();
  sinClima.ZonaClimatica = "Z9";
  gestor.Activo().SetLocalizacion(sinClima);
  const auto fallidos = CalcularProyecto(gestor, entorno);
  ASSERT_EQ(fallidos.size(), 1U);
  EXPECT_EQ(fallidos[0].nombre, "Viejo");
  EXPECT_TRUE(gestor.Caso("Mejora_1")->GetCalculo()->Calculado());
}

TEST(FicherosDeCaso, TienenSuNombreYSoloSeEscribenSiSePiden) {
  EXPECT_EQ(NombreFicheroBalance("Viejo"), "Prueba.xml");
  EXPECT_EQ(NombreFicheroSistemas("Viejo"), "PruebaBis.xml");
  EXPECT_EQ(NombreFicheroBalance("Mejora_5"), "PruebaR5.xml");
  EXPECT_EQ(NombreFicheroSistemas("Mejora_3"), "PruebaBisR3.xml");
  EXPECT_EQ(NombreFicheroBalance("Referencia"), "PruebaReferencia.xml");
  EXPECT_EQ(NombreFicheroSistemas("Referencia"), "PruebaBisReferencia.xml");
  ProgramaPrueba programa({-3.5F, 80});
  const auto caja = CajaCaliente();
  ASSERT_TRUE(programa.Calcular(*caja, "Mejora_2"));
  EXPECT_FALSE(std::filesystem::exists(programa.Datos() / "PruebaR2.xml"));
  caja->QuitarCalculo();
  ASSERT_TRUE(programa.Calcular(*caja, "Mejora_2", kModoTodo, true));
  EXPECT_FALSE(std::filesystem::exists(programa.Datos() / "Prueba.xml"));

  const XMLNode balance = XMLNode::loadFile(programa.Datos() / "PruebaR2.xml", "DatosNOVEX6.1");
  ASSERT_EQ(balance.childCount(), 8760U);
  const XMLNode primera = balance.childAt(0);
  std::vector<std::string> atributos;
  for (std::size_t i = 0; i < primera.attributeCount(); ++i)
    atributos.emplace_back(primera.attributeAt(i)->name);
  ASSERT_EQ(atributos.size(), 43U);
  atributos.resize(12);
  EXPECT_THAT(atributos, testing::ElementsAre("Hora", "TSE", "WE", "THE", "FIE", "TCIE", "IDIRECTA",
                                              "IDIFUSA", "RADH", "AZIMUTS", "CENITS", "MLIGEROS"));
  EXPECT_EQ(primera.attributeAt(42)->name, "QEQh");
  EXPECT_EQ(primera.attributeValue("Hora"), "1");
  EXPECT_EQ(balance.childAt(8759).attributeValue("Hora"), "8760");
  EXPECT_EQ(primera.attributeValue("TSE"), "-3.50");
  EXPECT_EQ(primera.attributeValue("MLIGEROS"), "-26.00");
  EXPECT_EQ(primera.attributeValue("CLIGEROSS"), primera.attributeValue("CLIGEROS"));
  EXPECT_EQ(primera.attributeValue("TCR"), "21.00");
  // Lo escrito es lo que el motor ha usado.
  const calculo& c = *caja->GetCalculo();
  for (const int h : {1, 5000, 8760}) {
    const XMLNode nodo = balance.childAt(static_cast<std::size_t>(h - 1));
    const auto leido = [&](const char* nombre) {
      return static_cast<float>(RealInicial(nodo.attributeValue(nombre).value_or("nada")));
    };
    EXPECT_EQ(leido("WE"), c.clima.WE[h]);
    EXPECT_EQ(leido("MLIGERON"), c.clima.MLIGERO[norte][h]);
    EXPECT_EQ(leido("SUELOEXT"), c.clima.SUELOEXT[h]);
    EXPECT_EQ(leido("QEQh"), c.carga.QEQh[h]);
  }

  const XMLNode sistemas = XMLNode::loadFile(programa.Datos() / "PruebaBisR2.xml", "DatosNOVEX6.1");
  EXPECT_EQ(sistemas.childCount(), 8760U);
  EXPECT_EQ(sistemas.childAt(8759).nameOf(), "Item");
}

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
  ASSERT_TRUE(CalcularProyecto(gestor, entorno).empty());
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
