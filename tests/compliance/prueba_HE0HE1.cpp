#include <gtest/gtest.h>

#include "compliance/ControlSolar.h"
#include "compliance/LimitesHE0.h"
#include "compliance/RequisitoHE0.h"
#include "compliance/Requisitos.h"
#include "compliance/TransmitanciaGlobal.h"
#include "compliance/TransmitanciasMaximas.h"
#include "model/Cambios.h"

namespace novex {
namespace {

constexpr const char* kIntervencion = "Reforma >25% envolvente + Clima";

DocumentosHE DocumentosDePrueba() {
  const auto leer = [](const char* texto, const char* raiz) {
    return XMLNode::parseString(texto, raiz, "prueba");
  };
  DocumentosHE d;
  d.klimite = leer(
      "<Klimite><L HE1='D3' Compacidad1='0.40' Compacidad4='0.70' Compacidad1R='0.60' "
      "Compacidad4R='0.90' VA2='6' VA4='3'/></Klimite>",
      "Klimite");
  d.radJulio = leer(
      "<RadJulio><L HE1='D3' Horiz='200' NE='1' E='5' SE='4' S='100' SO='2' O='3' NO='1' "
      "N='50'/></RadJulio>",
      "RadJulio");
  d.valorMaximoU = leer(
      "<VALORMAXIMOU><L HE1='D3' MuroMax='0.41' CerraTerrMax='0.35' ParticionMax='0.65' "
      "SueloExtMax='0.41' TechoExtMax='0.35' HuecosMax='1.8' EscaparateMax='2.7' PuertasMax='5.7' "
      "PermeabilidadMax='9' ParticionMedianeraMax='0.65' ParticionesIntMaxHz='1.2' "
      "ParticionesIntMaxV='1.2' ParticionesDUsoMax='0.85'/></VALORMAXIMOU>",
      "VALORMAXIMOU");
  d.accesorios = leer(
      "<Accesorios><L Tipo='Persiana exterior blanca' Sencillo='0.1' Doble='0.2' "
      "Doblebajoemisivo='0.3' Triplebajoemisivo='0.9'/></Accesorios>",
      "Accesorios");
  return d;
}

// Dos fachadas de 50 m2, cubierta y solera de 100 m2 y diez ventanas de 1 m2 al sur, todo vidrio.
class HE : public testing::Test {
 protected:
  HE() {
    Localizacion sitio;
    sitio.ZonaClimatica = "D3";
    sitio.latitud = 40;
    edificio.SetLocalizacion(sitio);
    Recinto& r = edificio.GetRecinto(0);
    r.Suelo_habitable_m2 = 150;
    r.Volumen_total_m3 = 300;
    r.Muro_ext_m2[0][norte] = r.Muro_ext_m2[0][sur] = 50;
    r.Cubierta_horiz_sol_m2[0] = 100;
    r.Suelo_al_terreno_m2[0] = 100;
    Huecos& h = edificio.GetHuecos(0);
    h.Ancho_m = h.Alto_m = 1;
    h.Fraccion_marco_tanto_por_cien = 0;
    h.U_cristal_W_m2K = 1.6F;
    h.FS_cristal_tanto_por_uno = 0.6F;
    h.Permeabilidad_Ventanas = 10;
    h.columnas[sur].Anadir(10);
    Construccion c;
    c.U_L_Puentes[puente_forjados] = 0.1F;
    c.Perimetro_forjados = 20;
    c.U_L_Puentes[puente_ventanas] = 0.05F;
    c.Perimetro_huecos = 40;
    edificio.SetConstruccion(c);
    resultados.Uefectiva[ranura::MuroExt1] = 0.4F;
    resultados.Uefectiva[ranura::TechoExt1] = 0.3F;
    resultados.Uefectiva[ranura::SueloTerr1] = 3;
    resultados.Uequivalente[ranura::SueloTerr1] = 0.35F;
    resultados.demandaCalefaccion = 40;
  }
  void Existente(const char* reforma) {
    pruebas::CambiarGenerales(edificio, [&](DatosGenerales& d) {
      d.Modo_trabajo = "Existente";
      d.Reforma = reforma;
    });
  }
  void Uso(int perfil) {
    pruebas::CambiarGenerales(edificio, [&](DatosGenerales& d) { d.PerfilUso = perfil; });
  }
  void Sitio(const char* zona, const char* provincia = "") {
    pruebas::PonerLugar(edificio, zona, provincia);
  }
  Recinto& R() { return edificio.GetRecinto(0); }

  Edificio edificio;
  ResultadosCaso resultados;
  DocumentosHE documentos = DocumentosDePrueba();
};

TEST_F(HE, LoQueSeExigeEnCadaIntervencion) {
  const auto respuestas = [&] {
    std::string texto;
    for (const Requisito r :
         {Requisito::HE0, Requisito::HE1Kq, Requisito::HE1Klim, Requisito::HE4}) {
      const Aplicacion a = AplicaRequisito(edificio.GetDatosGenerales(), r);
      texto += a == Aplicacion::Si ? 'S' : a == Aplicacion::No ? 'N' : '-';
    }
    return texto;
  };
  EXPECT_EQ(respuestas(), "SSSS");
  const std::pair<const char*, const char*> casos[] = {
      {"Ampliación", "SSSN"},
      {"Cambio de uso", "SSSS"},
      {"Reforma >25% envolvente + Clima + ACS", "SSNS"},
      {"Reforma <25% envolvente + Clima + ACS", "NNNS"},
      {"Reforma >25% envolvente + Clima ", "SSNN"},
      {"Reforma <25% envolvente + Clima", "NNNN"},
      {"Reforma >25% envolvente + ACS", "SSNS"},
      {"Reforma <25% envolvente + ACS", "NNNS"},
      {"Reforma >25% envolvente ", "NSNN"},
      {"Reforma <25% envolvente", "NNNN"},
      {"", "----"},
      {"Otra", "----"}};
  for (const auto& [reforma, esperado] : casos) {
    Existente(reforma);
    EXPECT_EQ(respuestas(), esperado) << reforma;
  }
}

TEST_F(HE, LosLimitesDeHE0PorZonaYUso) {
  R().Suelo_habitable_m2 = 100;
  struct Caso {
    const char *zona, *provincia, *reforma;  // sin reforma, nuevo
    int uso;
    float calefaccion, frio, nren, tot;
  };
  const Caso casos[] = {
      {"alfa3c", "", nullptr, 0, 15, 15, 25, 46},    {"alfa3c", "", "Otra", 0, 15, 15, 50, 63.25F},
      {"A4", "", nullptr, 0, 15, 20, 25, 50},        {"B3", "", "Ampliación", 0, 15, 15, 28, 56},
      {"C1", "", nullptr, 0, 30, 15, 32, 64},  // 20 + 1000/100
      {"C2c", "", nullptr, 0, 30, 15, 40, 73.6F},    {"D2", "", kIntervencion, 0, 47, 15, 70, 105},
      {"D1", "Melilla", nullptr, 0, 47, 15, 38, 76},  // en D y E no se corrige
      {"E1", "", nullptr, 0, 70, 15, 43, 86},        {"B4", "Ceuta", nullptr, 0, 15, 20, 35, 64.4F},
      {"C4", "", nullptr, 3, 30, 20, 75, 185},        // 35 + 8x5, 140 + 9x5
      {"alfa3c", "", nullptr, 3, 15, 15, 154, 294},   // (70 + 40) 1.4, (165 + 45) 1.4
      {"B3c", "", "Otra", 3, 15, 15, 126, 273},       // (50 + 40) 1.4, (150 + 45) 1.4
      {"D3", "Ceuta", nullptr, 3, 47, 15, 84, 245},   // (20 + 40) 1.4, (130 + 45) 1.4
      {"D2c", "", nullptr, 0, 47, 15, 47.5F, 87.4F},  // zona sin fila: la de D, corregida
      {"A1c", "", nullptr, 3, 15, 15, 133, 280}};     // (55 + 40) 1.4, (155 + 45) 1.4
  for (const Caso& c : casos) {
    if (c.reforma != nullptr) {
      Existente(c.reforma);
    } else {
      DatosGenerales nuevo;
      edificio.SetDatosGenerales(nuevo);
    }
    Uso(c.uso);
    Sitio(c.zona, c.provincia);
    const LimitesCaso l = LimitesHE0(edificio, 5);
    EXPECT_FLOAT_EQ(l.demandaCalefaccion, c.calefaccion) << c.zona;
    EXPECT_FLOAT_EQ(l.demandaRefrigeracion, c.frio) << c.zona;
    EXPECT_FLOAT_EQ(l.CepNren, c.nren) << c.zona << c.provincia;
    EXPECT_FLOAT_EQ(l.CepTot, c.tot) << c.zona << c.provincia;
    EXPECT_EQ(l.deSuLetra, std::string(c.zona) == "D2c" || std::string(c.zona) == "A1c");
  }
  Sitio("Z1");
  EXPECT_FALSE(LimitesHE0(edificio, 5).puestos);
}

TEST_F(HE, HE0SumaSusServiciosYNoLosOtros) {
  const auto poner = [&](Servicio s, float nren, float tot) {
    resultados.servicio[s].porUnidad[kPrimariaNoRenovable][0] = nren;
    resultados.servicio[s].porUnidad[kPrimariaTotal][0] = tot;
  };
  poner(kCalefaccion, 10, 12);
  poner(kRefrigeracion, 5, 7);
  poner(kACS, 8, 20);
  poner(kVentilacion, 4, 100);
  poner(kIluminacion, 100, 3);
  resultados.limites = {27, 15, 27, 42, true, false};
  resultados.horasOcupacion = 1000;
  resultados.horasFueraCalefaccion = 30;
  resultados.horasFueraRefrigeracion = 10;
  RequisitoHE0 he0 = ComprobarHE0(edificio, resultados);
  EXPECT_FLOAT_EQ(static_cast<float>(he0.CepNren), 27);  // igual que el límite: cumple
  EXPECT_FLOAT_EQ(static_cast<float>(he0.CepTot), 42);
  EXPECT_TRUE(he0.Cumple());
  EXPECT_EQ(he0.veredictoHoras, "Cumple");
  resultados.horasFueraRefrigeracion = 11;
  resultados.limites.CepTot = 41.9F;
  he0 = ComprobarHE0(edificio, resultados);
  EXPECT_EQ(he0.veredictoHoras + he0.veredictoTot + he0.veredictoNren, "No CumpleNo CumpleCumple");
  Existente("");
  he0 = ComprobarHE0(edificio, resultados);
  EXPECT_EQ(he0.veredictoTot, "No Aplicable");
  EXPECT_TRUE(he0.Cumple());
  EXPECT_EQ(he0.veredictos[0].nota, "El edificio existente no dice su intervención");
}

TEST_F(HE, KCompacidadYSuLimiteAMano) {
  // (50x0.4x2 + 100x0.3 + 100x0.35 + 10x1.6 + 20x0.1 + 40x0.05)/310; V/A = 300/310 < 1
  TransmitanciaGlobal t = ComprobarK(edificio, resultados, documentos);
  EXPECT_NEAR(t.K, 125.0 / 310, 1e-6);
  EXPECT_NEAR(t.Klimite, 0.40, 1e-6);
  EXPECT_EQ(t.veredicto, "No Cumple K edificio");
  EXPECT_EQ(t.comparacion, "Como Kedificio (0.40) > Klimite(0.40)  ");
  EXPECT_FALSE(t.cumple);
  R().Volumen_total_m3 = 775;  // V/A 2.5
  t = ComprobarK(edificio, resultados, documentos);
  EXPECT_NEAR(t.Klimite, 0.55, 1e-6);
  EXPECT_TRUE(t.cumple);
  EXPECT_EQ(t.textos[0], "Compacidad edificio= Volumen/(Aext+Aterreno) = 775.00/310.00 = 2.50");
  // Un lucernario horizontal también cuenta: 2 m2 de U 1.6.
  edificio.GetHuecos(0).columnas[kColumnaHorizontal].Anadir(2);
  t = ComprobarK(edificio, resultados, documentos);
  EXPECT_NEAR(t.K, (125 + 3.2) / 312, 1e-6);
  Existente("Reforma >25% envolvente");
  EXPECT_NEAR(ComprobarK(edificio, resultados, documentos).Klimite, 0.60 + (775.0 / 312 - 1) * 0.1,
              1e-6);
  Existente("Reforma <25% envolvente");
  t = ComprobarK(edificio, resultados, documentos);
  EXPECT_EQ(t.veredicto, "No Aplicable");
  EXPECT_TRUE(t.cumple);
  EXPECT_EQ(PorCompacidad(1, 1, 5, 4, 8), 5);
  EXPECT_EQ(PorCompacidad(4, 1, 5, 4, 8), 8);
}

TEST_F(HE, SinDemandaNoSeExigeK) {
  resultados.demandaCalefaccion = 14.9F;
  const TransmitanciaGlobal t = ComprobarK(edificio, resultados, documentos);
  EXPECT_EQ(t.veredicto, "No aplicable. Demanda (ambos<15kW/hm2 año).");
  EXPECT_TRUE(t.cumple);
  EXPECT_FALSE(t.registro.aplica);
  resultados.demandaRefrigeracion = 15;
  EXPECT_FALSE(ComprobarK(edificio, resultados, documentos).cumple);
}

TEST_F(HE, N50TeoricoMedidoYCuandoNoSeExige) {
  RelacionAire r = ComprobarN50(edificio, resultados, documentos);
  EXPECT_NEAR(r.n50, 0.629 * (16 * 200 + 100) / 300, 1e-6);
  EXPECT_EQ(r.limite, 6);
  EXPECT_EQ(r.veredicto, "No Cumple el valor de relación cambio aire");
  EXPECT_EQ(r.SGNV50limite.filas[0][1].texto, "3200.00");
  pruebas::CambiarGenerales(edificio, [](DatosGenerales& d) {
    d.Tipon50 = "Medido";
    d.Valorn50 = 6;
  });
  r = ComprobarN50(edificio, resultados, documentos);
  EXPECT_TRUE(r.cumple);
  EXPECT_EQ(r.textos[0], "nv50= 6.00 [h-1]   Valor medido");
  R().Suelo_habitable_m2 = 120;
  r = ComprobarN50(edificio, resultados, documentos);
  EXPECT_FALSE(r.registro.aplica);
  EXPECT_EQ(r.veredicto, "Cumple el valor de relación cambio aire");
  R().Suelo_habitable_m2 = 150;
  Existente("Cambio de uso");
  r = ComprobarN50(edificio, resultados, documentos);
  EXPECT_EQ(r.veredicto, "No aplicable");
  EXPECT_NEAR(r.n50, 0.629 * (29 * 200 + 100) / 300, 1e-6);
}

TEST_F(HE, ControlSolarPorOrientacionYAccesorio) {
  Huecos& h = edificio.GetHuecos(0);
  // 10 m2 x 100 x 0.6 = 600 kWh entre 150 m2
  ControlSolar c = ComprobarControlSolar(edificio, documentos);
  EXPECT_NEAR(c.q, 4, 1e-5);
  EXPECT_EQ(c.veredicto, "No Cumple el valor del control solar");
  h.Fraccion_marco_tanto_por_cien = 50;
  c = ComprobarControlSolar(edificio, documentos);
  EXPECT_NEAR(c.q, 2, 1e-5);
  h.Indice_tipo_sombra_movil = 1;
  h.Indice_tipo_cristal = 4;  // pasa de la tercera columna
  EXPECT_NEAR(ComprobarControlSolar(edificio, documentos).q, 0.6, 1e-5);
  h.Indice_tipo_sombra_movil = 0;
  h.Indice_tipo_sombra_fija = 1;  // 0.49 al sur
  EXPECT_NEAR(ComprobarControlSolar(edificio, documentos).q, 0.98, 1e-5);
  // Un lucernario toma la horizontal y ninguna sombra: 10 x 200 x 0.3 / 150.
  h.Tipo_de_hueco = kLucernario;
  c = ComprobarControlSolar(edificio, documentos);
  EXPECT_NEAR(c.q, 4, 1e-5);
  EXPECT_NEAR(c.ganancia[kSectores], 600, 1e-3);
  Existente("Reforma <25% envolvente");
  EXPECT_TRUE(ComprobarControlSolar(edificio, documentos).cumple);
  R().Suelo_habitable_m2 = 0;
  EXPECT_EQ(ComprobarControlSolar(edificio, documentos).q, 0);
}

TEST_F(HE, TransmitanciasMaximasPorFila) {
  TransmitanciasMaximas m = ComprobarTransmitancias(edificio, resultados, documentos);
  EXPECT_FALSE(m.cumple);
  EXPECT_EQ(m.filas[0].TextoValor() + m.filas[0].TextoCumple(), "0.40Cumple");
  EXPECT_EQ(m.filas[1].valor, 0.35F);  // la equivalente, en su límite
  EXPECT_TRUE(m.filas[1].cumple);
  EXPECT_EQ(m.filas[2].TextoValor() + m.filas[2].TextoCumple(), "---Cumple");
  EXPECT_FALSE(m.filas[12].cumple);  // permeabilidad 10 sobre 9
  // La permeabilidad de una puerta no se mira, y su U tiene su límite.
  edificio.GetHuecos(0).Tipo_de_hueco = kPuerta;
  m = ComprobarTransmitancias(edificio, resultados, documentos);
  EXPECT_TRUE(m.cumple);
  EXPECT_EQ(m.filas[8].valor, 1.6F);
  EXPECT_EQ(m.veredicto, "Cumple U valores máximos");

  // Particiones: b·U, vacío sanitario con su equivalente, interiores sin área.
  R().Muro_otro_local_m2[1] = 5;
  resultados.bU[ranura::MuroOtro7] = 0.5F;
  R().Suelo_vacio_sanitario_m2[0] = 5;
  resultados.Uequivalente[ranura::SueloOtro1] = 0.7F;
  resultados.Uefectiva[ranura::SueloInt2] = 1.3F;
  resultados.Uefectiva[ranura::TechoInt3] = 0.9F;
  m = ComprobarTransmitancias(edificio, resultados, documentos);
  EXPECT_EQ(m.filas[2].valor, 0.7F);
  EXPECT_FALSE(m.filas[2].cumple);
  EXPECT_FALSE(m.filas[9].cumple);
  EXPECT_TRUE(m.filas[10].cumple);
  EXPECT_FALSE(m.filas[11].cumple);

  // En una reforma solo cuentan los que se intervienen.
  Existente(kIntervencion);
  m = ComprobarTransmitancias(edificio, resultados, documentos);
  EXPECT_TRUE(m.cumple);
  EXPECT_EQ(m.filas[0].TextoValor(), "---");
  EXPECT_EQ(m.veredictos[0].nota, "Ningún elemento de esta clase se interviene");
  R().RSueloVacioReh[0] = 1;
  EXPECT_FALSE(ComprobarTransmitancias(edificio, resultados, documentos).filas[2].cumple);
  Existente("Ampliación");
  EXPECT_FALSE(ComprobarTransmitancias(edificio, resultados, documentos).filas[9].cumple);
}

TEST_F(HE, SinFicherosLosLimitesSonCero) {
  const DocumentosHE vacios = LeerDocumentosHE("no existe");
  EXPECT_EQ(ComprobarK(edificio, resultados, vacios).Klimite, 0);
  EXPECT_EQ(ComprobarControlSolar(edificio, vacios).q, 0);
  const TransmitanciasMaximas m = ComprobarTransmitancias(edificio, resultados, vacios);
  EXPECT_FALSE(m.filas[0].cumple);
  EXPECT_EQ(m.filas[0].rotulo, "Muros exteriores");
  EXPECT_EQ(m.veredictos[0].nota, "Faltan los límites de la zona");
  edificio.GetRecinto(0) = {};
  edificio.GetHuecos(0) = {};
  EXPECT_EQ(ComprobarK(edificio, resultados, documentos).K, 0);
}

}  // namespace
}  // namespace novex
