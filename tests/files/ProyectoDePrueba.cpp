#include "ProyectoDePrueba.h"

#include <cstddef>
#include <cstring>
#include <initializer_list>
#include <type_traits>

#include "base/Calendario.h"

namespace novex::pruebas {
namespace {

using Textos = std::initializer_list<std::string*>;
using Reales = std::initializer_list<float*>;
using Logicos = std::initializer_list<bool*>;

void Poner(Valores& v, Textos campos) {
  for (std::string* c : campos) *c = v.Texto();
}
void Poner(Valores& v, int decimales, Reales campos) {
  for (float* c : campos) *c = v.Real(decimales);
}
template <std::size_t N>
void PonerTabla(Valores& v, int decimales, std::array<float, N>& tabla) {
  for (float& x : tabla) x = v.Real(decimales);
}
void Encender(Logicos campos) {
  for (bool* c : campos) *c = true;
}

void LlenarAdministracion(DatosGenerales& d, Valores& v) {
  d.Version = "NOVEX 2026.09.30";
  d.PerfilUso = 7;
  d.TipoCertificado = "ObraReforma";
  d.Modo_trabajo = "Existente";
  d.Uso = "Administrativo";
  d.GradoProteccion = "Integral";
  d.Certificador_Provincia = "Sevilla";
  Poner(v, {&d.Equipos_Defecto,
            &d.Reforma,
            &d.Modo_Vision,
            &d.Fecha,
            &d.Alcance,
            &d.NormativaEdificacion,
            &d.NormativaInstalaciones,
            &d.Otra_legislacion_aplicable,
            &d.Edificio_Titulo,
            &d.Direccion,
            &d.CodigoPostal,
            &d.AnoConstruccion,
            &d.Certificador_Empresa,
            &d.Certificador_Nombre,
            &d.Certificador_Direccion,
            &d.Certificador_NIF,
            &d.Certificador_CP,
            &d.Certificador_Localidad,
            &d.Certificador_Movil,
            &d.Certificador_CIF,
            &d.Certificador_email,
            &d.Certificador_Profesion,
            &d.Tiposimulacion,
            &d.MedidaMejora});
  Encender({&d.CBConfort,       &d.CBIluminacion,    &d.CBMovilidad,    &d.CBSeguridad,
            &d.CBAccesibilidad, &d.CBIncendios,      &d.CBSalubridad,   &d.CBRuido,
            &d.CBOtros,         &d.CBHuecos,         &d.CBCubiertas,    &d.CBFachadas,
            &d.CBSuelos,        &d.CBMedianeras,     &d.CBSombras,      &d.CBGeneracionTermica,
            &d.CBRenovables,    &d.CBIluminacion2,   &d.CBDistribucion, &d.CBRecuperacion,
            &d.CBOtras,         &d.CBUsoIntervencion});
  d.Coste = 3;
  d.PlazoAmortizacion = 2;
  for (auto& memo : d.Memo) memo = {v.Texto(), "", v.Texto()};
  for (std::size_t i = 0; i < 3; ++i) {
    d.FechaVisita[i] = v.Texto();
    d.FechaObservacion[i] = v.Texto();
  }
  d.NumeroVisitas = 3;
  d.NumeroObservaciones = 3;
}

void LlenarUso(DatosGenerales& d, Valores& v) {
  Poner(v, {&d.Tipo, &d.TipoVEIIMax, &d.Actividad, &d.CriterioACS, &d.ManejoVentilacion, &d.TipoCO2,
            &d.ControlVent, &d.UTAFreeCooling, &d.UTAHumectacion, &d.RehabIntegralHE5});
  Poner(v, 0,
        {&d.Ventilacion, &d.Qescaparates, &d.WRecuperadorr, &d.HRmin, &d.NEquiposVent,
         &d.TminFreeCooling, &d.CaudalUTA, &d.PerdPresionToma});
  Poner(v, 1, {&d.Teminrec, &d.Temaxrec, &d.TminImp});
  Poner(v, 2,
        {&d.Sensibleocupantes, &d.Latenteocupantes, &d.Iluminacion, &d.Equipos, &d.Lux, &d.VEII,
         &d.VEIIMax, &d.EPotIluMax, &d.QOCUPSSimple, &d.QOCUPLSimple, &d.Nm2_p, &d.RendVentToma,
         &d.SuperficieTotalHE5, &d.SuperficieCubiertaHE5, &d.SuperficieCaptadorestermHE5});
  for (auto& familia : d.perfiles.tabla)
    for (PerfilDiario& perfil : familia)
      for (std::size_t h = 1; h < perfil.size(); ++h) perfil[h] = v.Real(2);
  for (std::size_t dia = 0; dia < 365; ++dia)
    d.perfiles.calendario[dia] = static_cast<int>(dia % 9) + 1;
  for (std::size_t mes = 1; mes <= kMeses; ++mes) d.perfiles.AccionMes[mes] = v.Texto();
}

void LlenarInstalaciones(DatosGenerales& d, Valores& v) {
  Poner(v, {&d.Existe_fotovoltaica, &d.Uso_fotovoltaico, &d.Tipon50, &d.TipoVentilacion2,
            &d.ManejoVentanas2, &d.Recuperador});
  d.Tipon50 = "Medido";
  PonerTabla(v, 2, d.PotPico_FV);
  PonerTabla(v, 2, d.Super_FV);
  PonerTabla(v, 0, d.Az_FV);
  PonerTabla(v, 0, d.Incli_FV);
  d.N_colec_term = v.Entero();
  d.Tipo_Inst_ST = v.Entero();
  Poner(v, 0,
        {&d.PSuciedad_FV, &d.PTcelula_FV, &d.PConversor_FV, &d.Incli_colec_term,
         &d.Azimut_colec_term, &d.Volumen_Dep_ST, &d.LD_Dep_ST, &d.UA_Dep_ST, &d.Caudal_Col_ST,
         &d.Caudal_Dep_ST, &d.Caudal_Rec_ST, &d.Efi_Inter_ST, &d.Long_Tub_ST, &d.Control_Tmin_ST,
         &d.NVBloqueF, &d.Eficiencia_recuperador, &d.Eficiencia_recuperador_Ental});
  Poner(v, 2,
        {&d.Aporte_fotovoltaico_kwh_ano, &d.Aporte_solar_tanto_por_cien, &d.Sup_colec_term,
         &d.PerdP_Col_ST, &d.PerdP_Dep_ST, &d.PerdP_Rec_ST, &d.PerdCalor_Tub_ST, &d.Area_Serp_ST,
         &d.Valorn50, &d.ERelaMasa, &d.WRecuperador, &d.ConsumoAgua_litros_dia});
  Poner(v, 4, {&d.AA_colec_term, &d.BB_colec_term, &d.CC_colec_term});
}

void LlenarSitio(Edificio& e, Valores& v) {
  Localizacion l;
  l.asnm = v.Entero();
  l.Pt = v.Entero();
  l.mesmin = 5;
  l.mesmax = 9;
  l.latitud = v.Real(5);
  Poner(v, {&l.ZonaClimatica, &l.zona_radiante, &l.Municipio});
  l.Provincia = "Burgos";
  l.Cambio_zona_temperatura = "SI";
  e.SetLocalizacion(l);
  ObstaculosRemotos o;
  Poner(v, 2,
        {&o.Oeste_Altura, &o.Oeste_Distancia, &o.SurOeste_Altura, &o.SurOeste_Distancia,
         &o.Sur_Altura, &o.Sur_Distancia, &o.SurEste_Altura, &o.SurEste_Distancia, &o.Este_Altura,
         &o.Este_Distancia});
  e.SetObstaculosRemotos(o);
  Ventilacion ventilacion;
  for (TipologiaVivienda& t : ventilacion.tipologias)
    t = {v.Entero(), v.Entero(), v.Entero(), v.Entero()};
  ventilacion.nrenovventilacion = v.Real(2);
  ventilacion.Calcular_Renov_h_segun_HS3 = "Si";
  e.SetVentilacion(ventilacion);
  DatosPantalla p;
  p.Registro = "RRTN";
  p.referencias = {{v.Texto(), v.Texto(), v.Texto()}, {v.Texto(), v.Texto(), v.Texto()}};
  p.inalterables = {{v.Texto(), v.Texto()}};
  p.Imagen = std::make_shared<const std::string>("<![CDATA[data:image/jpeg;base64,Zm9v");
  p.Plano = std::make_shared<const std::string>("<![CDATA[data:image/jpeg;base64,YmFy");
  e.SetDatosPantalla(p);
}

void LlenarConstruccion(Edificio& e, Valores& v) {
  Construccion k;
  k.NPlantasSobreRasante = v.Entero();
  k.NPlantasBajoRasante = v.Entero();
  k.Def_Puentes_termicos = 4;
  k.Def_Puentes_termicos_pilares = 2;
  k.Existencia_pilares = 1;
  k.Def_Puentes_termicos_ventanas = 2;
  k.Clase_de_higrometria = v.Entero();
  k.Longitud_puentes_termicos_modo = v.Texto();
  Poner(v, 2,
        {&k.Espesor_forjado, &k.Anchura_pilar, &k.Perimetro_forjados, &k.Perimetro_cubiertas,
         &k.Longitud_esquinas_sal_menos_ent, &k.Perimetro_suelo_ext, &k.Perimetro_huecos,
         &k.Perimetro_suelo_terreno});
  PonerTabla(v, 2, k.U_L_Puentes);
  PonerTabla(v, 2, k.fi_Puentes);
  PonerTabla(v, 2, k.Long_pilares);
  k.Renovacion_Buhardilla = {1, 2};
  k.Renovacion_Otro_Local = {3, 4};
  k.Renovacion_Otro_Local_suelo = {2, 1};
  k.Orientacion_Otro_Local = {4, 5};
  PonerTabla(v, 1, k.Profundidad_muro_enterrado_m);
  for (SueloTerreno& s : k.suelosTerreno) s = {v.Real(1), v.Texto(), v.Real(2), v.Real(2)};
  k.NColorMurosExt = 1;
  k.NColorCubiertasExt = 2;
  k.MurosExt = 5;
  k.MurosOtros = 2;
  k.SuelosTerreno = 3;
  k.SuelosOtros = 2;
  k.CubiertasHz = 3;
  k.CubiertasIncl = 3;
  k.CubiertasOtras = 2;
  e.SetConstruccion(k);
}

// El recinto es un nombre seguido de reales y luego de enteros: se llena por sus bytes, y así
// ningún área que se le añada se queda sin probar.
void LlenarRecinto(Recinto& r, Valores& v) {
  static_assert(std::is_standard_layout_v<Recinto>);
  auto* bytes = reinterpret_cast<std::byte*>(&r);
  std::size_t i = offsetof(Recinto, Volumen_total_m3);
  for (; i < offsetof(Recinto, RMuroExtReh); i += sizeof(float)) {
    const float valor = v.Real(1);
    std::memcpy(bytes + i, &valor, sizeof valor);
  }
  for (; i + sizeof(int) <= sizeof(Recinto); i += sizeof(int)) {
    const int valor = v.Entero();
    std::memcpy(bytes + i, &valor, sizeof valor);
  }
  // La parte fuera del primer plano no existe al norte.
  for (PorSector& muro : r.Muro_ext_Var_m2) muro[norte] = 0;
}

Huecos GrupoLleno(Valores& v) {
  Huecos h;
  h.Nombre_hueco = v.Texto();
  Poner(v, 2,
        {&h.Ancho_m, &h.Alto_m, &h.Distancia_alero_m, &h.Longitud_alero_m, &h.Retranqueo_m,
         &h.U_cristal_W_m2K, &h.FS_cristal_tanto_por_uno, &h.U_marco_W_m2K,
         &h.Fraccion_marco_tanto_por_cien, &h.Valor_multiplicativo_FS_verano,
         &h.Valor_multiplicativo_FS_invierno, &h.Valor_multiplicativo_U_verano,
         &h.Valor_multiplicativo_U_invierno, &h.Permeabilidad_Ventanas, &h.U_Caja_de_persiana_W_m2K,
         &h.Vinf_Caja_de_persiana_m3_h, &h.Altura_Caja_de_persiana_m});
  h.Tipo_de_hueco = kEscaparate;
  h.Indice_tipo_cristal = 3;
  h.Indice_cristal_concreto = v.Entero();
  h.Indice_marco = 5;
  h.Indice_tipo_junta = v.Entero();
  h.Indice_tipo_sombra_fija = 7;
  h.Indice_tipo_sombra_movil = 11;
  h.Indice_tipo_control_Verano = v.Entero();
  h.Indice_tipo_control_Invierno = v.Entero();
  h.HuecoReh = v.Entero();
  h.Existe_Caja_persiana = 0;
  h.Tipo_de_U_Caja_persiana = 3;
  h.Tipo_de_Vinf_Caja_persiana = 2;
  for (std::size_t c = 0; c < kColumnasHuecos; ++c) {
    if (c == 6) continue;
    ColumnaHuecos& columna = h.columnas[c];
    columna.Anadir(c + 3);
    if (c != norte && c != kColumnaHorizontal) columna.Separacion_ventanas_vertical = v.Real(2);
    for (std::size_t p = 0; p < DireccionesDeColumna(c).cuantas; ++p)
      columna.obstaculos[p] = {v.Real(2), v.Real(2)};
  }
  return h;
}

void LlenarComposiciones(Edificio& e, Valores& v) {
  for (std::size_t ranura = 0; ranura < kRanuras; ++ranura) {
    e.GetComposicion(ranura).nombre = v.Texto();
    e.GetComposicion(ranura).U = v.Real(2);
    material m;
    Poner(v, {&m.Material, &m.Iniciales, &m.Nombre_material, &m.Grupo,
              &m.Pertenece_a_base_de_datos_CTE, &m.Aplicacion});
    Poner(v, 3,
          {&m.Espesor, &m.Conductividad, &m.Densidad, &m.CalorEspecifico, &m.Resistencia_termica,
           &m.Resisvidad_relativa_vapor});
    e.AnadirMaterial(m, ranura);
    // Otra capa compartida, para que el orden dentro de la composición cuente.
    e.AnadirCapa(ranura, ranura / 2);
  }
}

void LlenarGenerador(Instalaciones& g, Valores& v) {
  Poner(v, {&g.Seleccion,      &g.TipoInstalacionesG,
            &g.TipoGenerador1, &g.TipoBC1,
            &g.TipoGenerador2, &g.TipoBC12,
            &g.Distribucion,   &g.Distribucion2,
            &g.Retorno,        &g.Alimentacion,
            &g.Alimentacion2,  &g.Alimentacion3,
            &g.Alimentacion4,  &g.Emisor,
            &g.ConsumoEmisor,  &g.CombCalor1,
            &g.CombCalorBio1,  &g.CombCalor2,
            &g.CombCalorBio2,  &g.CombEst,
            &g.Fabricante,     &g.Modelo});
  for (int* n : {&g.NEmisores, &g.NEquipos, &g.NHretorno, &g.Nradiadores}) *n = v.Entero();
  Poner(v, 0,
        {&g.TimpCalor, &g.saltoGenerador, &g.TimpACS, &g.TimpFrio, &g.saltoZona, &g.CaudalVent,
         &g.SaltoPVent});
  Poner(v, 1, {&g.EControlTe, &g.LD_deposito});
  Poner(v, 2,
        {&g.Long_tuberias,
         &g.Pot_perdida_m_tub,
         &g.Distanciaext_int,
         &g.Perdida_m_tub_ext_int,
         &g.Volumen,
         &g.UA_deposito,
         &g.TaltaD,
         &g.TbajaD,
         &g.AintermbD,
         &g.AintermbD2,
         &g.EfiIntercamb,
         &g.rendVent,
         &g.QcalorCaldera1,
         &g.RendCalor1,
         &g.RadiadorElectrico,
         &g.QcalorCaldera2,
         &g.RendCalor2,
         &g.QcalorBC1,
         &g.WeCalor1,
         &g.QcalorBC2,
         &g.WeCalor2,
         &g.RendCalorEst,
         &g.RendFrioEst,
         &g.RendACSEst,
         &g.SCOP,
         &g.QFrioSen1,
         &g.QFrioTot1,
         &g.WeFrio1,
         &g.QFrioSen2,
         &g.QFrioTot2,
         &g.WeFrio2,
         &g.QApoyoEquipo,
         &g.QApoyoTermo});
  for (BombaCircuito* b : {&g.SBZ, &g.GEN1, &g.GEN2, &g.DEP, &g.INT, &g.RET})
    *b = {v.Real(2), v.Real(b == &g.RET ? 0 : 1), v.Real(2), v.Real(2), v.Texto()};
  // Las curvas son todo reales: se llenan por sus bytes.
  static_assert(std::is_trivially_copyable_v<CurvasEquipo>);
  std::array<float, sizeof(CurvasEquipo) / sizeof(float)> curvas{};
  PonerTabla(v, 8, curvas);
  std::memcpy(static_cast<void*>(&g.curvas), curvas.data(), sizeof curvas);
}

SistemaResidencial SistemaLleno(Valores& v, const std::string& tipo) {
  SistemaResidencial s;
  s.Tipo_sistema = tipo;
  s.Nombre_sistema = v.Texto();
  Poner(v, 2, {&s.Sup_ACS, &s.Sup_Calefaccion, &s.Sup_Refrigeracion});
  Instalaciones g;
  LlenarGenerador(g, v);
  // Elementos que el registro no conoce.
  g.campos = {{"Nuevo", {{"a", v.Texto()}, {"b", "x"}}, "", {}},
              {"ConTexto", {}, v.Texto(), {}},
              {"Rama", {}, "", {{"Hoja", {{"name", v.Texto()}}, "", {}}}}};
  s.instalaciones = {g};
  return s;
}

}  // namespace

void LlenarCaso(Edificio& edificio, int semilla) {
  Valores v(semilla);
  DatosGenerales d;
  LlenarAdministracion(d, v);
  LlenarUso(d, v);
  LlenarInstalaciones(d, v);
  edificio.SetDatosGenerales(d);
  LlenarSitio(edificio, v);
  LlenarConstruccion(edificio, v);
  LlenarRecinto(edificio.GetRecinto(0), v);
  edificio.GetHuecos(0) = GrupoLleno(v);
  edificio.AnadirHuecos(GrupoLleno(v));
  LlenarComposiciones(edificio, v);
  edificio.AnadirSistema(SistemaLleno(v, "ACS+Calefaccion"));
  edificio.AnadirSistema(SistemaLleno(v, "Refrigeracion"));
  EstudioModificaciones estudio;
  estudio.medidas = {{3, true, v.Texto(), v.Texto(), {v.Texto(), "", v.Texto()}},
                     {101, false, v.Texto(), v.Texto(), {}}};
  edificio.SetEstudioModificaciones(estudio);
}

DatosDerivados::Caso ResultadosDePrueba(int semilla) {
  Valores v(semilla);
  DatosDerivados::Caso r;
  PonerTabla(v, 2, r.UCTE);
  Poner(v, 2,
        {&r.WBombCAPST, &r.WBombDEPST, &r.WBombRECST, &r.WEnergiaFinalVent, &r.WEnergiaFinalVentUTC,
         &r.WEnergiaFinalVentUTR, &r.ConsumoVentilacionAExt, &r.Caudal2Vent,
         &r.PotenciaEspecificaVent, &r.CargaInternaMedia});
  return r;
}

}  // namespace novex::pruebas
