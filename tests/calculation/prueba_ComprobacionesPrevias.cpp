#include "calculation/ComprobacionesPrevias.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "calculation/ProgramaPrueba.h"

namespace novex {
namespace {

using pruebas::CambiarGenerales;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kSinSuelos =
    "Faltan definir características de los suelos, (sino se quiere contabilizar intercambio de "
    "calor por ellos deben definirse como adiabáticos)";
constexpr const char* kMuchoSuelo =
    "Demasiado suelo definido en comparacion con el suelo habitable";
constexpr const char* kPocoSuelo =
    "Falta definir mayor superficie de suelos, (sino se quiere contabilizar intercambio de calor "
    "por parte ellos deben definirse como adiabáticos)";
constexpr const char* kSinUtil = "Falta definir el suelo habitable";
constexpr const char* kBajo =
    "La relacion entre el volumen y el suelo habitable debe ser mayor de 2";
constexpr const char* kAlto =
    "La relacion entre el volumen y el suelo habitable debe ser menor de 5";
constexpr const char* kVariosUnifamiliar =
    "No sepuede definir mas de una tipología de equipos de ACS en una vivienda unifamiliar";
constexpr const char* kVariosPiso =
    "No sepuede definir mas de una tipología de equipos de ACS en una vivienda dentro de un bloque";
constexpr const char* kViviendas =
    "No coincide el nº de viviendas con el nº de instalaciones individuales de ACS. Rectificar";
constexpr const char* kSolares =
    "Todas las instalaciones de energía solar deben ser de la misma tipología. Sólo existe una y "
    "es centralizada";
constexpr const char* kSinEquipos =
    "El nº de equipos definido en cualquier sistema debe ser mayor de cero. Rectificar";
constexpr const char* kMalRepartidos =
    "El nº de equipos definido para cada tipología de vivienda no coincide con el nº de equipos "
    "definidos para esa tipología. Rectificar";
constexpr const char* kSinCoeficientes =
    "No existen coeficientes operacionales. Volver a seleccionar el Tipo de edificio en la pestaña "
    "global";
constexpr const char* kSinU = "Falta definir la composición ó el Coef. Global ";
constexpr const char* kIncoherente =
    "La definición de equipos debe ser coherente con el sistema de ventilación definido.";

SistemaResidencial Sistema(const std::string& tipo, Instalaciones generador) {
  SistemaResidencial sistema;
  sistema.Tipo_sistema = tipo;
  sistema.instalaciones.push_back(std::move(generador));
  return sistema;
}

// Caldera con depósito que se alimenta de lo que se diga.
Instalaciones Caldera(const std::string& alimentacion = "Alimentación agua red") {
  Instalaciones g;
  g.Seleccion = "1 Caldera";
  g.TipoInstalacionesG = "Centralizada/Bloque";
  g.Distribucion = "Intercamb+Depósito";
  g.Alimentacion4 = alimentacion;
  g.NEquipos = 1;
  return g;
}

Instalaciones Individual(int equipos, int tipologia = 0) {
  Instalaciones g = Caldera();
  g.TipoInstalacionesG = "Individual/Vivienda";
  g.NEquipos = equipos;
  g.Nradiadores = tipologia;
  return g;
}

void PonerPerfil(Edificio& edificio, int perfil) {
  CambiarGenerales(edificio, [&](DatosGenerales& g) { g.PerfilUso = perfil; });
}

void PonerViviendas(Edificio& edificio, const std::array<int, kTipologias>& viviendas) {
  Ventilacion v = edificio.GetVentilacion();
  for (std::size_t i = 0; i < kTipologias; ++i) v.tipologias[i].N_viviendas = viviendas[i];
  edificio.SetVentilacion(v);
}

void QuitarSistemas(Edificio& edificio) {
  while (edificio.NumeroSistemas() > 0) edificio.BorrarSistema(0);
}

// Una casa de 100 m2 y 300 m3 sobre el terreno, con caldera para el agua caliente.
class ComprobacionesPreviasTest : public testing::Test {
 protected:
  ComprobacionesPreviasTest() {
    recinto.Suelo_al_terreno_m2[0] = 100;
    edificio.GetComposicion(ranura::SueloTerr1).U = 0.5F;
    edificio.AnadirSistema(Sistema("ACS", Caldera()));
    PonerPerfil(edificio, 0);
    PonerCoeficiente(CTCh, 0, 8, 20);
  }
  void PonerCoeficiente(Familia familia, std::size_t clase, std::size_t hora, float valor) {
    CambiarGenerales(edificio, [&](DatosGenerales& g) {
      g.perfiles = {};
      g.perfiles.tabla[familia][clase][hora] = valor;
    });
  }
  // Los textos de todo lo que falla, en su orden.
  std::vector<std::string> Textos() const {
    std::vector<std::string> textos;
    for (const MensajePrevio& m : MensajesPrevios(edificio)) textos.push_back(m.texto);
    return textos;
  }

  // Los mismos, con esos generadores de agua caliente en vez de los que haya.
  std::vector<std::string> TextosCon(std::vector<Instalaciones> generadores) {
    QuitarSistemas(edificio);
    for (Instalaciones& g : generadores) edificio.AnadirSistema(Sistema("ACS", std::move(g)));
    return Textos();
  }

  Edificio edificio;
  Recinto& recinto = edificio.GetRecinto(0);
};

TEST_F(ComprobacionesPreviasTest, LaSuperficieUtilElSueloYElVolumenGuardanRelacion) {
  EXPECT_EQ(ComprobacionesPrevias(edificio), "");
  EXPECT_THAT(TodasLasComprobaciones(edificio), IsEmpty());
  EXPECT_THAT(AvisosPrevios(edificio), IsEmpty());
  // En 81.9 / 91 y 133.2 / 148 el cociente exacto es 0.9. La altura media está entre 2 y 5.
  const std::tuple<float, float, float, const char*> casos[] = {{90, 100, 270, ""},
                                                                {81.9F, 91, 245, ""},
                                                                {133.2F, 148, 399, ""},
                                                                {89.9F, 100, 269, kMuchoSuelo},
                                                                {50, 1, 150, ""},
                                                                {50.1F, 1, 150, kPocoSuelo},
                                                                {100, 0, 300, kSinSuelos},
                                                                {100, 100, 200, kBajo},
                                                                {100, 100, 200.1F, ""},
                                                                {100, 100, 499.9F, ""},
                                                                {100, 100, 500, kAlto},
                                                                {90.65F, 100, 181.3F, kBajo},
                                                                {90.65F, 100, 453.25F, kAlto},
                                                                {100, 100, 0, kBajo},
                                                                {0, 100, 300, kSinUtil}};
  for (const auto& [util, suelo, volumen, texto] : casos) {
    recinto.Suelo_habitable_m2 = util;
    recinto.Suelo_al_terreno_m2[0] = suelo;
    recinto.Volumen_total_m3 = volumen;
    EXPECT_EQ(ComprobacionesPrevias(edificio), texto) << util << " " << suelo << " " << volumen;
  }
}

TEST_F(ComprobacionesPreviasTest, CuentanLosSuelosDeTodasLasClasesYRecintos) {
  for (std::size_t i = 0; i < ranura::SueloOtro4 + 1; ++i) edificio.GetComposicion(i).U = 1;
  for (float* area :
       {&recinto.Suelo_al_terreno_m2[2], &recinto.Suelo_ext_m2[1], &recinto.Suelo_otro_local_m2[1],
        &recinto.Suelo_vacio_sanitario_m2[1], &recinto.Suelo_adiabatico_m2[1]}) {
    recinto.Suelo_al_terreno_m2 = {};
    *area = 2;  // el límite de 100 m2 útiles
    EXPECT_THAT(Textos(), IsEmpty());
    *area = 0;
    EXPECT_THAT(Textos(), ElementsAre(kSinSuelos));
  }
  // El muro exterior del local de debajo no es suelo.
  recinto.Suelo_otro_local_ext_m2[0] = 100;
  EXPECT_THAT(Textos(), ElementsAre(kSinSuelos));

  Recinto otro;
  otro.Suelo_habitable_m2 = 100;
  otro.Volumen_total_m3 = 700;  // entre los dos, 1000 m3 para 200 m2
  otro.Suelo_adiabatico_m2[0] = 4;
  edificio.AnadirRecinto(otro);
  EXPECT_THAT(Textos(), ElementsAre(kAlto));
}

TEST_F(ComprobacionesPreviasTest, UnaViviendaTieneUnSoloGeneradorDeACS) {
  edificio.AnadirSistema(Sistema("Calefaccion", Caldera()));
  EXPECT_THAT(Textos(), IsEmpty());
  edificio.AnadirSistema(Sistema("ACS+Calefaccion+Refrigeracion", Caldera()));
  EXPECT_THAT(Textos(), ElementsAre(kVariosUnifamiliar));
  PonerPerfil(edificio, 2);
  EXPECT_THAT(Textos(), ElementsAre(kVariosPiso));
  for (const int perfil : {1, 3, 15}) {
    PonerPerfil(edificio, perfil);
    EXPECT_THAT(Textos(), IsEmpty()) << perfil;
  }
  // También cuentan los generadores de un mismo sistema.
  QuitarSistemas(edificio);
  SistemaResidencial doble = Sistema("ACS+Calefaccion", Caldera());
  doble.instalaciones.push_back(Caldera());
  edificio.AnadirSistema(doble);
  PonerPerfil(edificio, 0);
  EXPECT_THAT(Textos(), ElementsAre(kVariosUnifamiliar));
}

TEST_F(ComprobacionesPreviasTest, LosEquiposIndividualesDeUnBloqueSonLosDeSusViviendas) {
  PonerPerfil(edificio, 1);
  PonerViviendas(edificio, {4, 0, 0, 0, 0, 2});
  EXPECT_THAT(Textos(), IsEmpty());  // una caldera central
  EXPECT_THAT(TextosCon({Individual(4, 0), Individual(2, 5)}), IsEmpty());
  EXPECT_THAT(TextosCon({Individual(3, 0), Individual(1, 0), Individual(2, 5)}), IsEmpty());
  EXPECT_THAT(TextosCon({Individual(4, 0), Individual(1, 5)}),
              ElementsAre(kViviendas, kMalRepartidos));
  // El total coincide y el reparto no; una tipología que no existe solo cuenta en el total.
  EXPECT_THAT(TextosCon({Individual(3, 0), Individual(3, 5)}), ElementsAre(kMalRepartidos));
  EXPECT_THAT(TextosCon({Individual(4, 0), Individual(2, 6)}), ElementsAre(kMalRepartidos));
  EXPECT_THAT(TextosCon({Individual(4, 0), Individual(2, -1)}), ElementsAre(kMalRepartidos));
  // Una central al lado no cuenta.
  EXPECT_THAT(TextosCon({Individual(4, 0), Individual(2, 5), Caldera()}), IsEmpty());
  EXPECT_THAT(TextosCon({Individual(4, 0), Individual(2, 5), Individual(0, 1)}),
              ElementsAre(kSinEquipos));
  // En los demás usos no hay viviendas que contar, y en todos ha de haber algún equipo.
  PonerPerfil(edificio, 0);
  EXPECT_THAT(TextosCon({Individual(7)}), IsEmpty());
  for (const int perfil : {0, 5}) {
    PonerPerfil(edificio, perfil);
    EXPECT_THAT(TextosCon({Individual(0)}), ElementsAre(kSinEquipos)) << perfil;
  }
}

TEST_F(ComprobacionesPreviasTest, LaInstalacionSolarEsUna) {
  PonerPerfil(edificio, 5);
  constexpr const char* kDirecto = "Directo solar intercambiador";
  constexpr const char* kRecirculado = "Recirculado solar intercambiador";
  Instalaciones calentador;
  calentador.Seleccion = "1 Calentador";
  calentador.Distribucion2 = "Directo";
  calentador.Alimentacion = kDirecto;
  calentador.NEquipos = 1;
  // Dos iguales, aun con generadores distintos, o una sola.
  EXPECT_THAT(TextosCon({Caldera(kDirecto), calentador}), IsEmpty());
  EXPECT_THAT(TextosCon({Caldera(kDirecto), Caldera()}), IsEmpty());
  // Dos distintas, también con otra sin solar entre ellas.
  EXPECT_THAT(TextosCon({Caldera(kDirecto), Caldera(), Caldera(kRecirculado)}),
              ElementsAre(kSolares));
  EXPECT_THAT(TextosCon({Caldera(kDirecto), Caldera("Directo solar interacumulador")}),
              ElementsAre(kSolares));
  EXPECT_THAT(TextosCon({Caldera(kDirecto), Caldera(kRecirculado), Caldera(kRecirculado)}),
              ElementsAre(kSolares));
  // Una alimentación en un campo que su generador no lee no es una instalación solar.
  Instalaciones sinSolar = Caldera();
  sinSolar.Alimentacion = sinSolar.Alimentacion2 = sinSolar.Alimentacion3 = kRecirculado;
  EXPECT_THAT(TextosCon({Caldera(kDirecto), sinSolar}), IsEmpty());
}

TEST_F(ComprobacionesPreviasTest, HayAlgunCoeficienteOperacional) {
  PonerCoeficiente(CCAC, 2, 24, 0.1F);
  EXPECT_THAT(Textos(), IsEmpty());
  PonerCoeficiente(C1, 1, 1, 0);
  EXPECT_THAT(Textos(), ElementsAre(kSinCoeficientes));
  // No cuentan los días especiales ni la posición 0, que no es una hora.
  PonerCoeficiente(C1, 3, 12, 50);
  EXPECT_THAT(Textos(), ElementsAre(kSinCoeficientes));
  PonerCoeficiente(C1, 0, 0, 50);
  EXPECT_THAT(Textos(), ElementsAre(kSinCoeficientes));
}

struct Elemento {
  const char* clave;  // de su composición
  const char* texto;
  PaginaProyecto pagina;
  float& (*area)(Recinto&);
};

using P = PaginaProyecto;
using R = Recinto;
const Elemento kElementos[] = {
    {"MuroExt1", "de los muros exteriores Tipo 1", P::Muros,
     [](R& r) -> float& { return r.Muro_ext_m2[0][norte]; }},
    {"MuroExt5", "de los muros exteriores Tipo 5", P::Muros,
     [](R& r) -> float& { return r.Muro_ext_m2[4][este]; }},
    {"MuroOtro3", "del muro entre el local y el no hab. Tipo 1", P::Muros,
     [](R& r) -> float& { return r.Muro_otro_local_m2[0]; }},
    {"MuroOtro7", "del muro entre el local y el no hab. Tipo 2", P::Muros,
     [](R& r) -> float& { return r.Muro_otro_local_m2[1]; }},
    {"MuroExt7", "del muro entre el local no hab. y el exterior Tipo 2", P::Muros,
     [](R& r) -> float& { return r.Muro_otro_local_ext_m2[1]; }},
    {"MuroTerr2", "del muro en contacto con el terreno Tipo 2", P::Muros,
     [](R& r) -> float& { return r.Muro_al_terreno_m2[1]; }},
    {"MuroOtro1", "del muro adiabático Tipo 1", P::Muros,
     [](R& r) -> float& { return r.Muro_adiabatico_m2[0]; }},
    {"MuroOtro5", "del muro adiabático Tipo 2", P::Muros,
     [](R& r) -> float& { return r.Muro_adiabatico_m2[1]; }},
    {"TechoExt2", "de la cubierta horizontal extrior Tipo 2", P::Cubiertas,
     [](R& r) -> float& { return r.Cubierta_horiz_sol_m2[1]; }},
    {"TechoExt3", "de la cubierta horizontal exterior Tipo 3", P::Cubiertas,
     [](R& r) -> float& { return r.Cubierta_horiz_sol_m2[2]; }},
    {"TechoInc2", "de la cubierta inclinada exterior Tipo 2", P::Cubiertas,
     [](R& r) -> float& { return r.Cubierta_incl_m2[1][sur_oeste]; }},
    {"TechoVent3", "de la cubierta entre el local y el no hab. Tipo 2", P::Cubiertas,
     [](R& r) -> float& { return r.Cubierta_techo_ventilado_m2[1]; }},
    {"TechoVent2", "de la cubierta entre el local no hab. y el exterior Tipo 1", P::Cubiertas,
     [](R& r) -> float& { return r.Cubierta_buhardilla_ext_m2[0]; }},
    {"TechoVent4", "de la cubierta entre el local no hab. y el exterior Tipo 2", P::Cubiertas,
     [](R& r) -> float& { return r.Cubierta_buhardilla_ext_m2[1]; }},
    {"TechoTerr2", "de la cubierta en contacto con el terreno Tipo 2", P::Cubiertas,
     [](R& r) -> float& { return r.Cubierta_terreno_m2[1]; }},
    {"TechoOtro2", "de la cubierta adiabático Tipo 2", P::Cubiertas,
     [](R& r) -> float& { return r.Cubierta_adiabatico_m2[1]; }},
    {"SueloTerr3", "del suelo al terreno Tipo 3", P::Suelos,
     [](R& r) -> float& { return r.Suelo_al_terreno_m2[2]; }},
    {"SueloExt2", "del suelo al exterior Tipo 2", P::Suelos,
     [](R& r) -> float& { return r.Suelo_ext_m2[1]; }},
    {"SueloVent3", "del suelo entre el local y el no hab. Tipo 2", P::Suelos,
     [](R& r) -> float& { return r.Suelo_otro_local_m2[1]; }},
    {"MuroExt9", "del suelo entre el local no hab. y el exterior Tipo 2", P::Suelos,
     [](R& r) -> float& { return r.Suelo_otro_local_ext_m2[1]; }},
    {"SueloOtro3", "del suelo a vacio sanitario Tipo 2", P::Suelos,
     [](R& r) -> float& { return r.Suelo_vacio_sanitario_m2[1]; }},
    {"SueloOtro4", "del suelo adiabático Tipo 2", P::Suelos,
     [](R& r) -> float& { return r.Suelo_adiabatico_m2[1]; }},
};

TEST_F(ComprobacionesPreviasTest, TodoElementoConAreaTieneUYSaleEnSuOrden) {
  for (const Elemento& elemento : kElementos) {
    elemento.area(recinto) = 5;
    const std::size_t indice = *TablaEnvolvente::Indice(elemento.clave);
    composicion& ranura = edificio.GetComposicion(indice);
    EXPECT_THAT(MensajesPrevios(edificio),
                ElementsAre(MensajePrevio{
                    std::string(kSinU) + elemento.texto, elemento.pagina, {}, indice}));
    ranura.U = 0.001F;
    EXPECT_THAT(Textos(), IsEmpty()) << elemento.clave;
    elemento.area(recinto) = ranura.U = 0;
  }
  for (const Elemento& elemento : kElementos) elemento.area(recinto) = 1;
  const std::vector<std::string> textos = Textos();
  ASSERT_EQ(textos.size(), std::size(kElementos));
  for (std::size_t i = 0; i < textos.size(); ++i)
    EXPECT_EQ(textos[i], std::string(kSinU) + kElementos[i].texto);
}

TEST_F(ComprobacionesPreviasTest, LaVentilacionDaParaLosEmisores) {
  QuitarSistemas(edificio);
  PonerPerfil(edificio, 3);
  edificio.AnadirSistema(Sistema("Refrigeracion", Caldera()));
  std::string& emisor = edificio.GetSistema(0).instalaciones[0].Emisor;
  const auto conVentilacion = [&](const char* manejo) {
    CambiarGenerales(edificio, [&](DatosGenerales& g) { g.ManejoVentilacion = manejo; });
    return ComprobacionesPrevias(edificio);
  };
  for (const char* texto :
       {"Radiadores + Sist.Vent.", "Fancoil + Sist.Vent.", "Conductos + Sist.Vent.",
        "Suelo radiante + Sist.Vent.", "Unid.Interior + Sist.Vent.", "Sist.Vent."}) {
    emisor = texto;
    EXPECT_EQ(conVentilacion("TomaUT"), kIncoherente) << texto;
    for (const char* manejo :
         {"UTAprimario_a_unid_terminales", "UTAprimario_Ventilacion_indep.", "UTA"})
      EXPECT_EQ(conVentilacion(manejo), "") << texto << ", " << manejo;
  }
  EXPECT_EQ(conVentilacion("TomaUT"), kIncoherente);
  // Ni las viviendas ni el agua caliente se miran.
  edificio.GetSistema(0).Tipo_sistema = "ACS";
  EXPECT_EQ(ComprobacionesPrevias(edificio), "");
  edificio.GetSistema(0).Tipo_sistema = "ACS+Calefaccion";
  EXPECT_EQ(ComprobacionesPrevias(edificio), kIncoherente);
  PonerPerfil(edificio, 2);
  EXPECT_EQ(ComprobacionesPrevias(edificio), "");
  PonerPerfil(edificio, 3);
  emisor = "Fancoil";
  EXPECT_EQ(ComprobacionesPrevias(edificio), "");
}

TEST_F(ComprobacionesPreviasTest, SoloSeMuestraLaUltimaQueFalla) {
  recinto.Suelo_al_terreno_m2[0] = 200;
  recinto.Volumen_total_m3 = 900;
  EXPECT_EQ(ComprobacionesPrevias(edificio), kAlto);
  edificio.AnadirSistema(Sistema("ACS", Caldera()));
  EXPECT_EQ(ComprobacionesPrevias(edificio), kVariosUnifamiliar);
  PonerCoeficiente(C1, 0, 1, 0);
  EXPECT_EQ(ComprobacionesPrevias(edificio), kSinCoeficientes);
  edificio.GetComposicion(ranura::SueloTerr1).U = 0;
  const std::string sinU = std::string(kSinU) + "del suelo al terreno Tipo 1";
  EXPECT_EQ(ComprobacionesPrevias(edificio), sinU);
  EXPECT_THAT(Textos(),
              ElementsAre(kMuchoSuelo, kAlto, kVariosUnifamiliar, kSinCoeficientes, sinU));
}

TEST_F(ComprobacionesPreviasTest, UnaViviendaTieneACSYNoTieneEscaparates) {
  QuitarSistemas(edificio);
  edificio.AnadirSistema(Sistema("Calefaccion+Refrigeracion", Caldera()));
  Huecos escaparate;
  escaparate.Tipo_de_hueco = kEscaparate;
  edificio.AnadirHuecos(escaparate);
  // Un grupo sin huecos no es un escaparate.
  EXPECT_FALSE(HayEscaparateEnVivienda(edificio));
  edificio.GetHuecos(1).columnas[este].Anadir(1);
  recinto.Volumen_total_m3 = 500;
  for (const int perfil : {0, 1, 2}) {
    PonerPerfil(edificio, perfil);
    EXPECT_THAT(
        AvisosPrevios(edificio),
        ElementsAre(Mensaje{"Valor incorrecto", kAlto},
                    Mensaje{"AVISO", "Se debe definir una instalacion de ACS. No se calcula"},
                    Mensaje{"AVISO",
                            "Existe un hueco definido como escaparate en un edificio "
                            "residencial. No se calcula"}));
    EXPECT_EQ(TodasLasComprobaciones(edificio).size(), 3U);
  }
  // En un uso terciario solo queda la altura.
  PonerPerfil(edificio, 3);
  EXPECT_THAT(AvisosPrevios(edificio), ElementsAre(Mensaje{"Valor incorrecto", kAlto}));
  PonerPerfil(edificio, 0);
  for (const char* tipo : {"ACS", "ACS+Calefaccion", "ACS+Calefaccion+Refrigeracion"}) {
    edificio.GetSistema(0).Tipo_sistema = tipo;
    EXPECT_FALSE(FaltaACS(edificio)) << tipo;
  }
}

}  // namespace
}  // namespace novex
