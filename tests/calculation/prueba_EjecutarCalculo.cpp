#include "calculation/EjecutarCalculo.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "base/ErrorFichero.h"
#include "base/FicheroSeguro.h"
#include "base/NumeroTexto.h"
#include "calculation/ProgramaPrueba.h"
#include "demand/FicherosCaso.h"

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
  try {
    programa.Calcular(*caja);
    ADD_FAILURE() << "No ha fallado";
  } catch (const ErrorFichero& error) {
    EXPECT_THAT(error.what(), HasSubstr("RENDCALER"));
    EXPECT_THAT(error.ruta, HasSubstr("Defecto.xml"));
  }
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
  // El avance de cada caso va de 0 a 100 sin volver atrás.
  struct Registro : Progreso {
    void Avanzar(int porcentaje) override { vistos.push_back(porcentaje); }
    std::vector<int> vistos;
  } progreso;
  Entorno entorno{ficheros, programa.mensajes, progreso};
  ASSERT_TRUE(CalcularProyecto(gestor, entorno));
  EXPECT_TRUE(gestor.EsCasoActivo(caso::kViejo));
  EXPECT_GT(gestor.Caso("Viejo")->GetCalculo()->resultados.demandaCalefaccion,
            gestor.Caso("Mejora_1")->GetCalculo()->resultados.demandaCalefaccion + 50.0F);
  ASSERT_GE(progreso.vistos.size(), 24U);
  const auto mitad = progreso.vistos.begin() + static_cast<long>(progreso.vistos.size() / 2);
  EXPECT_TRUE(std::is_sorted(progreso.vistos.begin(), mitad));
  EXPECT_TRUE(std::is_sorted(mitad, progreso.vistos.end()));
  for (const int p : progreso.vistos) EXPECT_TRUE(p >= 0 && p <= 100);
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

}  // namespace
}  // namespace novex
