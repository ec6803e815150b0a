#include "outputs/administracion/InformeEvaluacion.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "base/NumeroTexto.h"
#include "base/Texto.h"
#include "calculation/Entorno.h"
#include "files/CaminoXml.h"
#include "model/Cambios.h"
#include "outputs/CasoPrueba.h"
#include "outputs/administracion/EscrituraInforme.h"
#include "outputs/administracion/InformeIdentificacion.h"
#include "outputs/administracion/InformeInstalaciones.h"
#include "rating/FactoresConversion.h"

namespace novex {
namespace {

using pruebas::En;
using pruebas::Texto;
using testing::HasSubstr;
using testing::Not;

// Una vivienda D3 de 100 m2 con energías puestas a mano, por m2 y año.
class Informe : public testing::Test {
 protected:
  Informe() {
    caso.Poner(0, "D3", "Existente");
    caso.Generales([](DatosGenerales& g) { g.TipoCertificado = "Existente"; });
    Lugar("Madrid");
    Recinto& recinto = caso.edificio->GetRecinto(0);
    recinto.Suelo_habitable_m2 = 100;
    recinto.Volumen_total_m3 = 300;
    ResultadosCaso& r = caso.Resultados();
    r.demandaCalefaccion = 30;
    r.demandaRefrigeracion = 10.126F;
    r.demandaACS = 20;
    for (auto& th : r.escala.th) th = {10, 20, 30, 40, 50, 60};
    Servicio_(kCalefaccion, VectorEnergetico::GasNatural, 4000, 47.6F, 10.08F);
    Servicio_(kRefrigeracion, VectorEnergetico::Electricidad, 300, 5.862F, 0.993F);
    Servicio_(kACS, VectorEnergetico::Biomasa_Pellet, 2500, 2.125F, 0.45F);
    Servicio_(kVentilacion, VectorEnergetico::Electricidad, 100, 1.954F, 0.331F);
    r.total[kPrimariaNoRenovable] = 57.541F;
    r.total[kEmisiones] = 11.854F;
    r.emisionesElectricidad = 1.324F;
    verificacion.K.envolvente.volumen = 300;
    verificacion.K.envolvente.Aext = 240;
  }
  // \param kWh del edificio \param nren,co2 por m2
  void Servicio_(Servicio s, VectorEnergetico v, float kWh, float nren, float co2) {
    IndicadoresServicio& i = caso.Resultados().servicio[s];
    i.finalPorVector[Indice(v)][0] = kWh;
    i.porUnidad[kPrimariaNoRenovable][0] = nren;
    i.porUnidad[kEmisiones][0] = co2;
  }
  void Lugar(const std::string& provincia) {
    pruebas::CambiarLugar(*caso.edificio,
                          [&](Localizacion& lugar) { lugar.Provincia = provincia; });
  }
  std::string Escribir(bool conProyecto = false) {
    std::vector<const Edificio*> proyecto;
    if (conProyecto) proyecto.push_back(caso.edificio.get());
    return InformeEvaluacion({caso.MostrarCalificado(), verificacion, mejoras, proyecto, {}});
  }
  XMLNode Leer(bool conProyecto = false) {
    return XMLNode::parseString(Escribir(conProyecto), "DatosEnergeticosDelEdificio", "informe");
  }
  pruebas::CasoDePrueba caso;
  VerificacionHE verificacion;
  MejorasMedidas mejoras;
};

TEST_F(Informe, EnergiasEmisionesYLetras) {
  const XMLNode n = Leer();
  EXPECT_EQ(n.attributeValue("version"), "2.0");
  EXPECT_EQ(Texto(n, "Demanda/EdificioObjeto/Global"), "60.13");  // 30 + 10,126 + 20
  EXPECT_EQ(Texto(n, "Demanda/EdificioObjeto/Refrigeracion"), "10.13");
  EXPECT_EQ(Texto(n, "Demanda/EdificioDeReferencia"), "(falta)");
  EXPECT_EQ(Texto(n, "Demanda/Exigencias"), "(falta)");  // solo se certifica
  const XMLNode vectores = En(n, "Consumo/EnergiaFinalVectores");
  EXPECT_EQ(vectores.childCount(), 3U);
  EXPECT_EQ(Texto(vectores, "GasNatural/Global"), "40.00");
  EXPECT_EQ(Texto(vectores, "BiomasaPellet/ACS"), "25.00");
  EXPECT_EQ(Texto(vectores, "ElectricidadPeninsular/Global"), "4.00");  // con la ventilación
  EXPECT_EQ(Texto(vectores, "ElectricidadPeninsular/Refrigeracion"), "3.00");
  EXPECT_EQ(Texto(vectores, "ElectricidadPeninsular/Iluminacion"), "(falta)");
  EXPECT_EQ(Texto(n, "Consumo/EnergiaPrimariaNoRenovable/Global"), "57.54");
  EXPECT_EQ(Texto(n, "Consumo/EnergiaPrimariaNoRenovable/Calefaccion"), "47.60");
  EXPECT_EQ(Texto(n, "EmisionesCO2/ConsumoElectrico"), "1.32");
  EXPECT_EQ(Texto(n, "EmisionesCO2/ConsumoOtros"), "10.53");
  EXPECT_EQ(Texto(n, "EmisionesCO2/TotalConsumoOtros"), "1053.00");
  const XMLNode letras = En(n, "Calificacion");
  EXPECT_EQ(Texto(letras, "Demanda/Calefaccion"), "D");  // en el umbral, la peor
  EXPECT_EQ(Texto(letras, "EnergiaPrimariaNoRenovable/Global"), "F");
  EXPECT_EQ(Texto(letras, "EnergiaPrimariaNoRenovable/ACS"), "A");
  EXPECT_EQ(Texto(letras, "EmisionesCO2/Global"), "B");
  EXPECT_EQ(Texto(letras, "EmisionesCO2/EscalaGlobal/F"), "60.00");
  EXPECT_EQ(Texto(letras, "EmisionesCO2/Iluminacion"), "(falta)");
  EXPECT_EQ(Texto(n, "DatosGeneralesyGeometria/Compacidad"), "1.25");
  // La biomasa es toda la energía del agua caliente, y más que su demanda de 2000 kWh.
  const XMLNode biomasa = En(n, "EnergiasRenovables/Termica/Sistema");
  EXPECT_EQ(Texto(biomasa, "Nombre"), "Biomasa");
  EXPECT_EQ(Texto(biomasa, "ConsumoFinalACS"), "100.00");
  EXPECT_EQ(Texto(biomasa, "DemandaACS"), "125.00");
  EXPECT_EQ(Texto(n, "EnergiasRenovables/Electrica"), "(falta)");
}

TEST_F(Informe, SinRefrigeracionQueCalificarNoSeCuentaEnNada) {
  caso.Poner(0, "D1", "Existente");
  caso.Resultados().total[kPrimariaNoRenovable] = 51.679F;
  caso.Resultados().total[kEmisiones] = 10.861F;
  caso.Resultados().limites = {};
  mejoras.base.cifras[static_cast<std::size_t>(CifraMedida::EnergiaPrimariaTotal)] = 57.541F;
  mejoras.base.cifras[static_cast<std::size_t>(CifraMedida::EnergiaPrimariaRef)] = 5.862F;
  mejoras.medidas = {mejoras.base};
  mejoras.medidas[0].letras.fill("C");
  const XMLNode n = Leer();
  EXPECT_EQ(Texto(n, "Demanda/EdificioObjeto/Global"), "50.00");
  EXPECT_EQ(Texto(n, "Consumo/EnergiaFinalVectores/ElectricidadPeninsular/Global"), "1.00");
  EXPECT_EQ(Texto(n, "EmisionesCO2/ConsumoElectrico"), "0.33");  // la de la ventilación
  EXPECT_EQ(Texto(n, "EmisionesCO2/ConsumoOtros"), "10.53");
  EXPECT_EQ(Texto(n, "Calificacion/Demanda/EscalaRefrigeracion"), "(falta)");
  EXPECT_EQ(Texto(n, "MedidasDeMejora/Medida/EnergiaPrimariaNoRenovable/Global"), "51.68");
  for (const char* bloque : {"Demanda/EdificioObjeto", "Consumo/EnergiaPrimariaNoRenovable",
                             "EmisionesCO2", "Calificacion/EmisionesCO2", "Calificacion/Demanda"})
    EXPECT_FALSE(En(n, std::string(bloque) + "/Refrigeracion")) << bloque;
}

TEST_F(Informe, EnTerciarioVanLaReferenciaYLaIluminacion) {
  caso.Poner(14, "D3", "Existente");
  caso.Generales([](DatosGenerales& g) {
    g.TipoCertificado = "ProyectoReforma";
    g.Iluminacion = 8.5F;
    g.Lux = 500;
    g.VEII = 1.7F;
    g.ManejoVentilacion = "UTA";
    g.TipoCO2 = "SondaCO2 con freecooling";
  });
  ResultadosCaso& r = caso.Resultados();
  r.escala.referencia[static_cast<std::size_t>(Indicador::DemandaCalefaccion)] = 40;
  r.escala.referencia[static_cast<std::size_t>(Indicador::DemandaRefrigeracion)] = 12;
  r.escala.DemandaACS_solar_minima = 5;
  r.limites.puestos = true;
  Servicio_(kIluminacion, VectorEnergetico::Electricidad, 1000, 19.54F, 3.31F);
  caso.resultado->meses.bombas[kACS][0] = 12.5F;
  caso.resultado->meses.ventilacion[0] = 100;
  const XMLNode n = Leer();
  EXPECT_EQ(Texto(n, "Demanda/EdificioDeReferencia/Global"), "57.00");
  EXPECT_EQ(Texto(n, "Demanda/Exigencias"), "(falta)");  // son de vivienda
  EXPECT_EQ(Texto(n, "Consumo/EnergiaPrimariaNoRenovable/Iluminacion"), "19.54");
  EXPECT_EQ(Texto(n, "Calificacion/EnergiaPrimariaNoRenovable/Iluminacion"), "B");
  EXPECT_EQ(Texto(n, "InstalacionesIluminacion/PotenciaTotalInstalada"), "8.50");
  EXPECT_EQ(Texto(n, "InstalacionesIluminacion/Espacio/VEEI"), "1.70");
  EXPECT_EQ(Texto(n, "CondicionesFuncionamientoyOcupacion/Espacio/PerfilDeUso"),
            "noresidencial-24h-alta");
  const XMLNode uta =
      En(n, "InstalacionesTermicas/SistemasSecundariosCalefaccionRefrigeracion/Sistema");
  EXPECT_EQ(Texto(uta, "EnfriamientoGratuito"), "Si");
  EXPECT_EQ(Texto(uta, "RecuperacionEnergia"), "No");
  EXPECT_EQ(Texto(uta, "TipoControl"), "Ventilacion con sonda CO2");
  const XMLNode auxiliares = En(n, "InstalacionesTermicas/VentilacionyBombeo");
  EXPECT_EQ(auxiliares.childCount(), 2U);
  EXPECT_EQ(Texto(auxiliares, "Sistema/ConsumoDeEnergia"), "12.50");
  EXPECT_EQ(Texto(n, "DatosGeneralesyGeometria/VentilacionUsoResidencial"), "(falta)");
}

// El humectador no enfría, y el primer perfil terciario no prueba el enfriamiento gratuito.
TEST_F(Informe, LaUnidadDeAireEsLaDelCertificado) {
  caso.Poner(3, "D3", "Existente");
  caso.Generales([](DatosGenerales& g) {
    g.ManejoVentilacion = "UTAprimario_Ventilacion_indep.";
    g.UTAHumectacion = "HumectadorSi";
    g.TipoCO2 = "SondaCO2 con freecooling";
  });
  const char* const kUnidad =
      "InstalacionesTermicas/SistemasSecundariosCalefaccionRefrigeracion/Sistema/";
  const auto dice = [&](const char* dato) { return Texto(Leer(), kUnidad + std::string(dato)); };
  EXPECT_EQ(dice("Nombre"), "UTAprimario");
  EXPECT_EQ(dice("EnfriamientoEvaporativo"), "No");
  EXPECT_EQ(dice("EnfriamientoGratuito"), "No");
  caso.Generales([](DatosGenerales& g) { g.TipoCO2 = "Proporcional al nº personas (sonda CO2)"; });
  EXPECT_EQ(dice("TipoControl"), "Proporcional al nº personas (sonda CO2)");
}

TEST_F(Informe, ExigenciasDeUnaViviendaQueSeVerifica) {
  caso.Generales([](DatosGenerales& g) {
    g.TipoCertificado = "ProyectoReforma";
    g.Reforma = "Reforma <25% envolvente";
  });
  LimitesCaso& l = caso.Resultados().limites;
  l.demandaCalefaccion = 27.5F;
  l.demandaRefrigeracion = 15;
  l.CepNren = 65;
  EXPECT_FALSE(En(Leer(), "Demanda/Exigencias"));  // la zona no tiene límites
  l.puestos = true;
  XMLNode n = Leer();
  EXPECT_EQ(Texto(n, "Demanda/Exigencias/LimiteCalefaccionVivienda"), "27.50");
  EXPECT_EQ(Texto(n, "Demanda/Exigencias/LimiteRefrigeracionVivienda"), "15.00");
  EXPECT_FALSE(En(n, "Consumo/Exigencias"));  // a esa reforma no se le exige el consumo
  caso.Poner(0, "D3", "Nuevo");
  caso.Generales([](DatosGenerales& g) { g.TipoCertificado = "ObraNuevaConstruccion"; });
  EXPECT_EQ(Texto(Leer(), "Consumo/Exigencias/LimiteViviendaGlobalEPNR"), "65.00");
}

TEST_F(Informe, LaEnvolventeLlevaLaTransmitanciaQueSeVerifica) {
  Edificio& e = *caso.edificio;
  Recinto& r = e.GetRecinto(0);
  r.Muro_ext_m2[1][sur] = 42.5F;
  r.Suelo_al_terreno_m2[0] = 80;
  r.Muro_otro_local_m2[1] = 12;
  r.Cubierta_adiabatico_m2[0] = 7;
  ResultadosCaso& res = caso.Resultados();
  res.Uefectiva.fill(0.5F);
  res.Uequivalente.fill(0.25F);
  res.bU.fill(0.1F);
  e.GetComposicion(ranura::MuroExt2).nombre = "Ladrillo & cámara";
  e.AnadirMaterial(pruebas::Capa("Ladrillo", 0.115F, 0.667F), ranura::MuroExt2);
  e.AnadirMaterial(pruebas::Capa("Cámara", 0.05F, 0, 0.18F), ranura::MuroExt2);
  Huecos& g = e.GetHuecos(0);
  g.Nombre_hueco = "Salón";
  g.Ancho_m = 2;
  g.Alto_m = 1.5F;
  g.Fraccion_marco_tanto_por_cien = 0;
  g.Existe_Caja_persiana = 1;
  g.U_cristal_W_m2K = 3.1F;
  g.FS_cristal_tanto_por_uno = 0.6F;
  g.columnas[oeste].Anadir(3);
  g.columnas[kColumnaHorizontal].Anadir(1);
  Construccion c;
  c.Def_Puentes_termicos = 4;
  c.Perimetro_forjados = 40;
  c.U_L_Puentes[puente_forjados] = -0.054F;
  e.SetConstruccion(c);
  const XMLNode n = En(Leer(), "DatosEnvolventeTermica");

  const XMLNode opacos = n.childNamed("CerramientosOpacos");
  ASSERT_EQ(opacos.childCount(), 4U);
  const XMLNode muro = opacos.childAt(0);
  EXPECT_EQ(Texto(muro, "Nombre"), "Muro Exterior 2 S: Ladrillo & cámara");
  EXPECT_EQ(Texto(muro, "Superficie"), "42.50");
  EXPECT_EQ(Texto(muro, "Orientacion"), "S");
  EXPECT_EQ(Texto(muro, "Transmitancia"), "0.50");
  EXPECT_EQ(Texto(muro, "ModoDeObtencion"), "Usuario");
  EXPECT_EQ(Texto(muro.childNamed("Capas").childAt(0), "Espesor"), "0.1150");
  EXPECT_EQ(Texto(muro.childNamed("Capas").childAt(0), "ConductividadTermica"), "0.667");
  EXPECT_EQ(Texto(muro.childNamed("Capas").childAt(1), "ResistenciaTermica"), "0.18");
  EXPECT_FALSE(En(muro.childNamed("Capas").childAt(1), "ConductividadTermica"));
  const auto fila = [&](const std::string& tipo) {
    for (std::size_t i = 0; i < opacos.childCount(); ++i)
      if (Texto(opacos.childAt(i), "Tipo") == tipo) return opacos.childAt(i);
    return XMLNode();
  };
  EXPECT_EQ(Texto(fila("Suelo"), "Transmitancia"), "0.25");
  EXPECT_EQ(Texto(fila("Suelo"), "ModoDeObtencion"), "PorDefecto");  // existente, sin composición
  EXPECT_EQ(Texto(fila("ParticionInteriorVertical"), "Transmitancia"), "0.10");
  EXPECT_EQ(Texto(fila("Adiabatico"), "Superficie"), "7.00");

  const XMLNode huecos = n.childNamed("HuecosyLucernarios");
  ASSERT_EQ(huecos.childCount(), 2U);
  EXPECT_EQ(Texto(huecos.childAt(0), "Nombre"), "Salón O");
  EXPECT_EQ(Texto(huecos.childAt(0), "Superficie"), "9.00");
  EXPECT_EQ(Texto(huecos.childAt(0), "Transmitancia"), "3.10");
  EXPECT_EQ(Texto(huecos.childAt(0), "FactorSolar"), "0.60");
  EXPECT_EQ(Texto(huecos.childAt(0), "ModoDeObtencionFactorSolar"), "Usuario");
  EXPECT_EQ(Texto(huecos.childAt(1), "Tipo"), "Lucernario");

  const XMLNode puentes = n.childNamed("PuentesTermicos");
  ASSERT_EQ(puentes.childCount(), 1U);
  EXPECT_EQ(Texto(puentes.childAt(0), "Transmitancia"), "-0.05");
  EXPECT_EQ(Texto(puentes.childAt(0), "ModoDeObtencion"), "Usuario");
}

TEST_F(Informe, UnEdificioSinNadaYValoresNoFinitos) {
  const XMLNode n = En(Leer(), "DatosEnvolventeTermica");
  EXPECT_EQ(n.childNamed("CerramientosOpacos").childCount(), 1U);
  EXPECT_EQ(Texto(n, "CerramientosOpacos/Elemento/Superficie"), "0.00");
  EXPECT_EQ(Texto(n, "HuecosyLucernarios/Elemento/Nombre"), "Sin huecos");
  EXPECT_FALSE(n.childNamed("PuentesTermicos"));

  const float nan = std::numeric_limits<float>::quiet_NaN();
  const float inf = std::numeric_limits<float>::infinity();
  caso.edificio->GetRecinto(0).Muro_ext_m2[0][norte] = inf;
  caso.edificio->GetRecinto(0).Suelo_habitable_m2 = 0;
  caso.Resultados().demandaACS = nan;
  caso.Resultados().emisionesElectricidad = inf;
  caso.Resultados().proporcionHuecos.fill(nan);
  const std::string texto = Escribir();
  for (const char* malo : {">nan", ">-nan", ">inf", ">-inf"})
    EXPECT_THAT(texto, Not(HasSubstr(malo)));
}

TEST_F(Informe, LosTextosDelUsuarioLleganEnteros) {
  const std::string malo = "<a b=\"c\"> & 'd' ]]> ñÁü €\t¿?";
  const std::string conControl =
      "uno\x01"
      "dos\x1f\x0b"
      "tres";
  caso.Generales([&](DatosGenerales& g) {
    g.Edificio_Titulo = malo;
    g.Certificador_Nombre = conControl;
    g.Direccion =
        "Calle Espa\xf1"
        "a";  // Latin-1
    g.NumeroVisitas = 2;
    g.FechaVisita = {"1/2/2026", malo, "no se usa"};
    g.Memo[1] = {malo, "", "fin"};
    g.Memo[4] = {conControl};
  });
  DatosPantalla pantalla;
  pantalla.referencias = {{"1234501VK3713S", "0001AB", "Casa"}, {"1234502VK3713S", "0002CD", "B"}};
  pantalla.Imagen =
      std::make_shared<const std::string>("<![CDATA[data:image/jpeg;base64,/9j/4AAQ]]>");
  pantalla.Plano = std::make_shared<const std::string>("data:image/png;base64,iVBO]]> sobra");
  caso.edificio->SetDatosPantalla(pantalla);
  const std::string texto = Escribir(true);
  EXPECT_TRUE(EsUtf8(texto));
  EXPECT_EQ(texto.find_first_of("\x01\x0b\x1f"), std::string::npos);
  const XMLNode n = XMLNode::parseString(texto, "DatosEnergeticosDelEdificio", "informe");
  EXPECT_EQ(Texto(n, "IdentificacionEdificio/NombreDelEdificio"), malo);
  EXPECT_EQ(Texto(n, "IdentificacionEdificio/Direccion"), "Calle España");
  EXPECT_EQ(Texto(n, "IdentificacionEdificio/ReferenciaCatastral"),
            "1234501VK3713S0001AB, 1234502VK3713S0002CD");
  EXPECT_EQ(Texto(n, "DatosDelCertificador/NombreyApellidos"), "unodostres");
  const XMLNode visitas = n.childNamed("PruebasComprobacionesInspecciones");
  ASSERT_EQ(visitas.childCount(), 2U);
  EXPECT_EQ(Texto(visitas.childAt(0), "Datos"), malo + "\n\nfin");
  EXPECT_EQ(Texto(visitas.childAt(1), "FechaVisita"), malo);
  const XMLNode geometria = n.childNamed("DatosGeneralesyGeometria");
  EXPECT_EQ(geometria.childNamed("Imagen").clearAt(0), "data:image/jpeg;base64,/9j/4AAQ");
  EXPECT_EQ(geometria.childNamed("Plano").clearAt(0), "data:image/png;base64,iVBO");
  EXPECT_EQ(En(n, "DatosPersonalizados/Novex/Datos_Generales/Imagen").clearAt(0),
            "<![CDATA[data:image/jpeg;base64,/9j/4AAQ");
}

TEST_F(Informe, LasMedidasSeComparanConLaBase) {
  const auto poner = [](ResultadoMedida& m, CifraMedida c, float v) {
    m.cifras[static_cast<std::size_t>(c)] = v;
  };
  poner(mejoras.base, CifraMedida::EmisionesTotal, 11.85F);
  poner(mejoras.base, CifraMedida::DemandaCale, 30);
  poner(mejoras.base, CifraMedida::DemandaRef, 10);
  ResultadoMedida m;
  m.codigo = 11;
  poner(m, CifraMedida::EmisionesTotal, 9.6F);
  poner(m, CifraMedida::DemandaCale, 22);
  poner(m, CifraMedida::DemandaRef, 12);
  poner(m, CifraMedida::EnergiaFinalTotalEsp, 50);
  m.letras.fill("C");
  m.letras[static_cast<std::size_t>(Indicador::EmisionesACS)] = "( - )";
  mejoras.medidas = {m};
  caso.edificio->SetEstudioModificaciones({{{11, true, "1250,5", "7", {"Fachada", "sur"}}}});
  const XMLNode n = En(Leer(), "MedidasDeMejora/Medida");
  EXPECT_EQ(Texto(n, "Nombre"), MedidaDeCodigo(11)->texto);
  EXPECT_EQ(Texto(n, "CosteEstimado"),
            "1250.5 euros. Se estima un periodo de amortización de 7 años");
  EXPECT_EQ(Texto(n, "OtrosDatos"), "Fachada sur");
  EXPECT_EQ(Texto(n, "Demanda/Global"), "34.00");
  EXPECT_EQ(Texto(n, "Demanda/GlobalDiferenciaSituacionInicial"), "6.00");
  EXPECT_EQ(Texto(n, "EmisionesCO2/GlobalDiferenciaSituacionInicial"), "2.25");
  EXPECT_EQ(Texto(n, "EnergiaFinal/Global"), "50.00");
  EXPECT_EQ(Texto(n, "CalificacionEmisionesCO2/Global"), "C");
  EXPECT_EQ(Texto(n, "CalificacionEmisionesCO2/ACS"), "(falta)");
  // Lo que no se califica no tiene informe.
  caso.PonerSimulacionLibre();
  EXPECT_THROW(Escribir(), ErrorCalculo);
}

TEST_F(Informe, UnGeneradorQueNoHaTrabajadoConservaSuRendimiento) {
  Instalaciones& i = caso.AnadirSistema("ACS+Calefaccion", "1 Caldera", "Sala", 2);
  caso.edificio->GetSistema(0).Sup_Calefaccion = 60;
  i.QcalorCaldera1 = 24;
  i.RendCalor1 = 0.92F;
  i.CombCalor1 = "GLP";
  SumasBloque& s = caso.resultado->sumasBloques[0];
  s.dado[0][kCalefaccion] = 900;
  s.consumo[0][kCalefaccion] = 1000;
  const XMLNode n = Leer();
  EXPECT_EQ(Texto(n, "DatosGeneralesyGeometria/PorcentajeSuperficieHabitableCalefactada"), "60");
  EXPECT_EQ(Texto(n, "DatosGeneralesyGeometria/PorcentajeSuperficieHabitableRefrigerada"), "0");
  const XMLNode calor = En(n, "InstalacionesTermicas/GeneradoresDeCalefaccion/Generador");
  EXPECT_EQ(Texto(calor, "Tipo"), "2x) Caldera");
  EXPECT_EQ(Texto(calor, "PotenciaNominal"), "48.00");
  EXPECT_EQ(Texto(calor, "RendimientoEstacional"), "0.90");
  EXPECT_EQ(Texto(calor, "VectorEnergetico"), "GLP");
  EXPECT_EQ(Texto(calor, "ModoDeObtencion"), "Estimado");
  const XMLNode agua = En(n, "InstalacionesTermicas/InstalacionesACS/Instalacion");
  EXPECT_EQ(Texto(agua, "RendimientoEstacional"), "0.92");
  EXPECT_EQ(Texto(agua, "ModoDeObtencion"), "Usuario");
  EXPECT_FALSE(En(n, "InstalacionesTermicas/GeneradoresDeRefrigeracion"));
}

TEST(InformeClases, TipoDeEdificioYAlcance) {
  DatosGenerales g;
  const auto tipo = [&](int perfil, const char* alcance) {
    g.PerfilUso = perfil;
    g.Alcance = alcance;
    return TipoDeEdificio(g);
  };
  EXPECT_EQ(tipo(0, "Parte"), "ViviendaUnifamiliar");
  EXPECT_EQ(tipo(1, "Completo"), "BloqueDeViviendaCompleto");
  EXPECT_EQ(tipo(2, "Parte"), "ViviendaIndividualEnBloque");
  EXPECT_EQ(tipo(3, "Completo"), "EdificioUsoTerciario");
  EXPECT_EQ(PerfilDeUsoInforme(g), "noresidencial-8h-baja");
  EXPECT_EQ(tipo(15, "Parte"), "LocalUsoTerciario");
  EXPECT_EQ(PerfilDeUsoInforme(g), "perfildeusuario");
  const std::pair<const char*, const char*> alcances[] = {
      {"Existente", "CertificacionExistente"},
      {"ProyectoNuevaConstruccion", "CertificacionVerificacionNuevo"},
      {"ObraNuevaConstruccion", "CertificacionVerificacionNuevo"},
      {"ProyectoAmpliacion", "CertificacionVerificacionExistente"},
      {"ObraReforma", "CertificacionVerificacionExistente"}};
  for (const auto& [certificado, alcance] : alcances) {
    g.TipoCertificado = certificado;
    EXPECT_EQ(AlcanceInforme(g), alcance) << certificado;
  }
}

// La electricidad que se nombra es la de los factores con que se ha calculado.
TEST(InformeClases, ElSistemaElectricoEsElDeLosFactores) {
  TablaFactores factores{};
  const std::pair<FilaFactor, const char*> filas[] = {
      {FilaFactor::ElectricidadPeninsular, "ElectricidadPeninsular"},
      {FilaFactor::ElectricidadBaleares, "ElectricidadBaleares"},
      {FilaFactor::ElectricidadCanarias, "ElectricidadCanarias"},
      {FilaFactor::ElectricidadCeutayMelilla, "ElectricidadCeutayMelilla"}};
  for (std::size_t i = 0; i < std::size(filas); ++i)
    factores[static_cast<std::size_t>(filas[i].first)].CO2 = static_cast<float>(i + 1);
  for (const char* provincia : {"Madrid", "Illes Balears", "Las Palmas", "Santa Cruz de Tenerife",
                                "Ceuta", "Melilla", "Valencia/València", "Otra"}) {
    const float fila = Conversor(factores, provincia).Emisiones(VectorEnergetico::Electricidad, 1);
    EXPECT_EQ(VectorInforme(VectorEnergetico::Electricidad, provincia),
              filas[static_cast<std::size_t>(fila) - 1].second)
        << provincia;
  }
  EXPECT_EQ(VectorInforme(VectorEnergetico::MedioAmbiente, "Madrid"), "");
}

}  // namespace
}  // namespace novex
