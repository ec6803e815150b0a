#include "entry/DefinicionExpres.h"

#include <gtest/gtest.h>

#include "entry/DescripcionExpres.h"
#include "entry/ProyectoNuevo.h"
#include "entry/SupuestosExpres.h"
#include "model/PropiedadesHueco.h"
#include "reference/ValoresDefectoU.h"

namespace novex {
namespace {

// Doce U distintas para ver cuál va a cada posición.
constexpr const char* kValores =
    "<ValoresDefectoU><Antes_1979><D murosext='1.1' murosl_ln='1.2' murosln_ext='1.3' cubext='1.4' "
    "cubl_ln='1.5' cubln_ext='1.6' suelot='1.7' sueloext='1.8' suelovs='1.9' suelol_ln='2.1' "
    "sueloln_ext='2.2' hueco='5.5'/></Antes_1979></ValoresDefectoU>";

class Expres : public testing::Test {
 protected:
  Expres() {
    Localizacion sitio;
    sitio.ZonaClimatica = "D3";
    edificio.SetLocalizacion(sitio);
    PonerUso(0);
    entrada.periodo = "Antes_1979";
    entrada.superficie = "100";
    entrada.volumen = "270";
  }
  void PonerUso(int perfil) {
    DatosGenerales d = edificio.GetDatosGenerales();
    d.PerfilUso = perfil;
    d.Modo_Vision = "Simplificado";
    d.Nm2_p = 10;
    edificio.SetDatosGenerales(d);
  }
  const Recinto& Definir() {
    DefinirExpres(edificio, entrada, valores, nullptr, mensajes);
    return edificio.GetRecinto(0);
  }
  float U(ranura::Ranura r) const { return edificio.GetComposicion(r).U; }

  XMLNode valores = XMLNode::parseString(kValores, "ValoresDefectoU", "prueba");
  Edificio edificio;
  EntradaExpres entrada;
  RegistroMensajes mensajes;
};

TEST_F(Expres, LasUDeLaEpocaVanASusPosiciones) {
  edificio.AnadirMaterial({}, ranura::TechoInt1);
  Definir();
  using namespace ranura;
  const std::pair<Ranura, float> casos[] = {
      {MuroExt1, 1.1F},   {MuroOtro1, 1.2F},  {MuroOtro3, 1.2F},  {MuroExt6, 1.3F},
      {TechoExt1, 1.4F},  {TechoVent1, 1.5F}, {TechoOtro1, 1.5F}, {TechoVent2, 1.6F},
      {SueloTerr1, 1.7F}, {SueloExt1, 0},     {SueloOtro1, 1.9F}, {SueloVent1, 2.1F},
      {SueloOtro2, 2.1F}, {MuroExt8, 2.2F},   {MuroExt2, 0}};
  for (const auto& [posicion, u] : casos) {
    EXPECT_EQ(U(posicion), u) << TablaEnvolvente::Clave(posicion);
    EXPECT_EQ(edificio.GetComposicion(posicion).nombre, "No definido");
  }
  EXPECT_EQ(edificio.NumeroMateriales(), 0U);
  EXPECT_TRUE(mensajes.recibidos.empty());
  EXPECT_EQ(LetraZona("B4c"), "B");
  EXPECT_EQ(LetraZona("alfa2c"), "alfa");
  // Una época que el fichero no tiene da los valores de sustitución, con sus doce avisos.
  entrada.periodo = "2013-2019";
  Definir();
  EXPECT_EQ(U(MuroExt1), 1.0F);
  EXPECT_EQ(mensajes.recibidos.size(), 12U);
}

TEST_F(Expres, ElEdificioCierraAMano) {
  entrada.fachada = {"30", "20", "", "40", "", "20"};
  entrada.medianeras = "12";
  entrada.aLocalNoAcondicionado = "7";
  entrada.vidrios = {
      {{"2", "1", "", "4", "", ""}, "1.5", "1.2", VidrioExpres::Doble, ProteccionExpres::Persiana},
      {{"", "", "", "1", "", ""},
       "2",
       "2",
       VidrioExpres::Sencillo,
       ProteccionExpres::Contraventana}};
  entrada.puertas = {"1", "", "", "", "", ""};
  entrada.anchoPuerta = "0.9";
  entrada.altoPuerta = "2.1";
  const Recinto& r = Definir();
  const PorSector netos = {30 - 2 * 1.8F - 1.89F, 20 - 1.8F, 0, 40 - 4 * 1.8F - 4, 0, 20};
  for (std::size_t s = 0; s < kSectores; ++s) EXPECT_FLOAT_EQ(r.Muro_ext_m2[0][s], netos[s]) << s;
  EXPECT_EQ(std::tuple(r.Muro_adiabatico_m2[0], r.Muro_otro_local_m2[0],
                       r.Muro_otro_local_ext_m2[0], r.Cubierta_horiz_sol_m2[0],
                       r.Suelo_al_terreno_m2[0], r.Perimetro_Ext_Suelo_Terreno_m[0]),
            std::tuple(12, 7, 7, 100, 100, 40));
  ASSERT_EQ(edificio.NumeroHuecos(), 3U);
  const Huecos& doble = edificio.GetHuecos(0);
  EXPECT_EQ(doble.Nombre_hueco, "Grupo 1");
  EXPECT_EQ(doble.columnas[sur].recintos.size(), 4U);
  EXPECT_EQ(doble.U_cristal_W_m2K, 3.3F);
  EXPECT_EQ(doble.Existe_Caja_persiana, 0);
  EXPECT_EQ(doble.Indice_tipo_sombra_movil, 2);
  EXPECT_EQ(doble.Permeabilidad_Ventanas, 27);
  // (4 x 0.18 + 3.3 x 1.62 + 0 x 0.3) / (1.8 + 0.3), con la caja de 1.5 x 0.2 m
  EXPECT_NEAR(CalcularFigurasHueco(doble).UHueco, 2.8886, 1e-3);
  EXPECT_EQ(edificio.GetHuecos(1).Indice_tipo_sombra_movil, 13);
  EXPECT_EQ(edificio.GetHuecos(1).Permeabilidad_Ventanas, 139);
  EXPECT_EQ(edificio.GetHuecos(1).Fraccion_marco_tanto_por_cien, 20);
  const Huecos& puerta = edificio.GetHuecos(2);
  EXPECT_EQ(puerta.Nombre_hueco, "Grupo 3");
  EXPECT_EQ(puerta.Fraccion_marco_tanto_por_cien, 100);
  const Ventilacion& v = edificio.GetVentilacion();
  EXPECT_EQ(v.tipologias[0], (TipologiaVivienda{1, 3, 1, 2}));
  EXPECT_FLOAT_EQ(v.nrenovventilacion, 0.63F);
  // 3 dormitorios: 4 personas a 28 l; la caldera de la vivienda no lleva menos de 16 kW.
  EXPECT_EQ(edificio.GetDatosGenerales().ConsumoAgua_litros_dia, 112);
  ASSERT_EQ(edificio.NumeroSistemas(), 1U);
  EXPECT_EQ(edificio.GetSistema(0).Nombre_sistema, "pepe");
  const Instalaciones& b = edificio.GetSistema(0).instalaciones[0];
  EXPECT_EQ(b.Seleccion + b.TipoInstalacionesG + b.Distribucion2 + b.CombCalor1,
            "1 CalentadorIndividual/ViviendaDirectoGasNatural");
  // Perímetro de huecos: 7 de 5.4 m, uno de 8 y uno de 6.
  EXPECT_EQ(edificio.GetConstruccion().Perimetro_huecos, 51);
  EXPECT_EQ(edificio.GetConstruccion().Perimetro_suelo_terreno, 40);
  EXPECT_EQ(edificio.GetConstruccion().U_L_Puentes[puente_forjados], 0.41F);
  EXPECT_TRUE(mensajes.recibidos.empty());
  // Otra vez sobre lo mismo: nada se dobla.
  Definir();
  EXPECT_EQ(edificio.NumeroSistemas(), 1U);
  EXPECT_EQ(edificio.NumeroHuecos(), 3U);
}

TEST_F(Expres, MasHuecosQueFachadaAvisaYSigue) {
  entrada.fachada[norte] = "3";
  entrada.vidrios = {{{"2", "", "", "", "", ""}, "2", "1", VidrioExpres::Doble, {}}};
  EXPECT_FLOAT_EQ(Definir().Muro_ext_m2[0][norte], -1);
  ASSERT_EQ(mensajes.recibidos.size(), 1U);
  EXPECT_EQ(mensajes.recibidos[0],
            (Mensaje{"AVISO",
                     "Datos ilógicos introducidos al Norte. Hay mas superficie de ventanas que "
                     "superficie total (ventans+muros) en esa orientación)"}));
}

TEST_F(Expres, CubiertaYSueloVanPorSuEleccion) {
  entrada.tipoCubierta = CubiertaExpres::ABuhardilla;
  entrada.tipoSuelo = SueloExpres::VacioSanitario;
  entrada.suelo = "64";
  Recinto r = Definir();
  EXPECT_EQ(r.Cubierta_techo_ventilado_m2[0] + r.Cubierta_buhardilla_ext_m2[0], 200);
  EXPECT_EQ(r.Suelo_vacio_sanitario_m2[0], 64);
  EXPECT_EQ(r.Perimetro_Ext_Vacio_Sanitario_m[0], 32);
  EXPECT_EQ(r.Cubierta_horiz_sol_m2[0] + r.Perimetro_Ext_Suelo_Terreno_m[0], 0);
  entrada.tipoSuelo = SueloExpres::ALocalNoAcondicionado;
  entrada.tipoCubierta = CubiertaExpres::ALocalAcondicionado;
  r = Definir();
  EXPECT_EQ(r.Suelo_otro_local_m2[0] + r.Suelo_otro_local_ext_m2[0], 128);
  EXPECT_EQ(r.Suelo_vacio_sanitario_m2[0], 0);
  EXPECT_EQ(r.Cubierta_adiabatico_m2[0], 100);
  entrada.tipoSuelo = SueloExpres::ALocalAcondicionado;
  EXPECT_EQ(Definir().Suelo_adiabatico_m2[0], 64);
}

TEST_F(Expres, ViviendasPorUsoYAguaCalienteCentral) {
  entrada.viviendas = "6";
  const auto definir = [&](int uso, bool colectiva, const char* instalacion) {
    PonerUso(uso);
    entrada.colectiva = colectiva;
    entrada.instalacion = instalacion;
    Definir();
    return edificio.GetSistema(0).instalaciones[0];
  };
  Instalaciones b = definir(1, false, "1 Termo electrico");
  EXPECT_EQ(edificio.GetVentilacion().tipologias[0].N_viviendas, 6);
  EXPECT_EQ(edificio.GetDatosGenerales().NVBloqueF, 1);
  EXPECT_EQ(b.NEquipos, 6);
  EXPECT_EQ(b.CombCalor1, "Electricidad");
  b = definir(2, true, "1 BC aire-agua");
  EXPECT_EQ(edificio.GetVentilacion().tipologias[0].N_viviendas, 1);
  EXPECT_EQ(edificio.GetDatosGenerales().NVBloqueF, 6);
  EXPECT_EQ(b.TipoInstalacionesG + b.Distribucion + b.TipoBC1,
            "Centralizada/BloqueIntercamb+DepósitoMonoblock");
  // En una unifamiliar no hay colectiva.
  EXPECT_EQ(definir(0, true, "1 Caldera").TipoInstalacionesG, "Individual/Vivienda");
  EXPECT_EQ(InstalacionesExpres(0, true).size(), 5U);
  EXPECT_EQ(InstalacionesExpres(1, true).size(), 2U);
}

TEST_F(Expres, TerciarioTomaElAireDeSuClase) {
  PonerUso(4);
  entrada.calidadAire = "IDA3";
  entrada.fotovoltaica = "3,5";
  Definir();
  // 28.8 m3/h x 100 m2 / 10 m2 por persona / 270 m3
  EXPECT_NEAR(edificio.GetVentilacion().nrenovventilacion, 1.0667, 1e-4);
  EXPECT_EQ(edificio.GetVentilacion().Calcular_Renov_h_segun_HS3, "Si");
  EXPECT_EQ(edificio.GetDatosGenerales().PotPico_FV[0], 3.5F);
  EXPECT_EQ(edificio.GetDatosGenerales().Incli_FV[0], 30);
}

TEST_F(Expres, LaFraseCuentaLoQueSeHaConstruido) {
  entrada.fachada[norte] = "60";
  entrada.fachada[sur] = "40";
  // Tres ventanas de 4 m2 y una puerta de 2 m2: 14 de 100 m2.
  GrupoExpres ventana;
  ventana.ancho = ventana.alto = "2";
  ventana.unidades[norte] = "2";
  ventana.unidades[sur] = "1";
  entrada.vidrios = {ventana};
  entrada.anchoPuerta = "1";
  entrada.altoPuerta = "2";
  entrada.puertas[sur] = "1";
  entrada.medianeras = "30,5";
  entrada.suelo = "80";
  entrada.tipoSuelo = SueloExpres::VacioSanitario;
  entrada.fotovoltaica = "2,5";
  Definir();
  // Tres dormitorios son cuatro personas a 28 l/día (CTE DB-HE4, anejo F).
  EXPECT_EQ(DescribirExpres(edificio),
            "Edificio de 100 m² y 270 m³ en D3, fachada 100 m² con 14 % de huecos (U 1,1), "
            "medianeras 30,5 m² (U 1,2), cubierta al exterior 100 m² (U 1,4), suelo sobre vacío "
            "sanitario 80 m² (U 1,9), ventilación de 0,63 renovaciones por hora, agua caliente con "
            "1 Calentador para 112 l/día, fotovoltaica de 2,5 kW.");
  entrada = {};
  entrada.cubierta = entrada.suelo = "";
  PonerUso(4);
  Definir();
  const std::string frase = DescribirExpres(edificio);
  EXPECT_NE(frase.find("sin fachada"), std::string::npos);
  EXPECT_EQ(frase.find("cubierta"), std::string::npos);
  // Sin potencia tecleada el caso conserva la que tenía.
  EXPECT_NE(frase.find("fotovoltaica de 2,5 kW"), std::string::npos);
}

TEST(SupuestosExpres, LoQueNoSeDaSaleDeLaForma) {
  // Unifamiliar de 120 m2 en 2 plantas: planta de 60 m2, lado 7.746 m, alto 2.7 x 2.
  SupuestosExpres s;
  s.entrada = {};
  for (std::string* texto : {&s.entrada.volumen, &s.entrada.viviendas, &s.entrada.cubierta,
                             &s.entrada.suelo, &s.entrada.ventilacion})
    texto->clear();
  s.entrada.superficie = "120";
  s.entrada.fachada[norte] = "25";
  const auto lineas = CompletarExpres(s, 0);
  EXPECT_EQ(s.entrada.volumen, "324.0");
  EXPECT_EQ(s.entrada.fachada[norte], "25");  // lo dado no cambia
  EXPECT_EQ(s.entrada.fachada[sur], "41.8");
  EXPECT_EQ(s.entrada.fachada[sur_este], "");
  EXPECT_EQ(s.entrada.cubierta, "60.0");
  ASSERT_EQ(s.entrada.vidrios.size(), 1U);
  EXPECT_EQ(s.entrada.vidrios[0].unidades[sur], "6");  // 0.2 x 41.8 / 1.44 = 5.8
  EXPECT_EQ(s.entrada.vidrios[0].unidades[norte],
            "3");                            // 3.5 va al impar... 0.2 x 25 / 1.44 = 3.47
  EXPECT_EQ(s.entrada.puertas[oeste], "1");  // la primera de las mayores
  EXPECT_GE(lineas.size(), 10U);
}

}  // namespace
}  // namespace novex
