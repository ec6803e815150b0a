#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "model/Perfiles.h"

namespace novex {

inline constexpr std::size_t kLineasMemo = 40;
inline constexpr std::size_t kMemos = 8;

/// Usos por su posición en `PerfilUso`.
inline constexpr std::array<std::string_view, 16> kNombrePerfilUso = {
    "Vivienda Unifamiliar",
    "Edificios en Bloque",
    "Vivienda dentro de un Bloque",
    "Terciario 8h Carga interna Baja",
    "Terciario 8h Carga interna Media",
    "Terciario 8h Carga interna Alta",
    "Terciario 12h Carga interna Baja",
    "Terciario 12h Carga interna Media",
    "Terciario 12h Carga interna Alta",
    "Terciario 16h Carga interna Baja",
    "Terciario 16h Carga interna Media",
    "Terciario 16h Carga interna Alta",
    "Terciario 24h Carga interna Baja",
    "Terciario 24h Carga interna Media",
    "Terciario 24h Carga interna Alta",
    "Terciario Perfil Usuario"};

/// Datos administrativos, uso, horarios y ajustes de instalaciones de todo el edificio.
struct DatosGenerales {
  int PerfilUso = 0;  ///< 0 a 15; por debajo de 3 es residencial
  std::string Modo_trabajo = "Nuevo";
  std::string TipoCertificado = "ProyectoNuevaConstruccion";
  std::string Equipos_Defecto;  ///< "SI" o "NO"
  std::string Reforma;
  std::string Modo_Vision;
  std::string Version = "NOVEX_v2.1";  ///< versión del fichero del que viene el caso
  std::string Fecha;
  std::string Uso;
  std::string Alcance;
  std::string NormativaEdificacion;
  std::string NormativaInstalaciones;
  std::string Otra_legislacion_aplicable;
  std::string GradoProteccion;
  std::string ElementoInalterable;  ///< solo de ficheros antiguos
  std::string NExpedienteP;
  std::string Edificio_Titulo, Direccion, CodigoPostal;
  // Proyectista: solo de ficheros antiguos.
  std::string Proyectista_Apellidos, Proyectista_Nombre, Proyectista_Direccion, Proyectista_NIF;
  std::string Proyectista_CP, Proyectista_Localidad, Proyectista_Provincia, Proyectista_Telefono;
  std::string Proyectista_email, Proyectista_Empresa, Proyectista_N_Colegiado;
  std::string Proyectista_Colegio_Profesional, Proyectista_Profesion;
  std::string NExpediente_ICE, ReferenciaCatastral, AnoConstruccion, NormativaVigente;
  std::string Certificador_Empresa, Certificador_Nombre, Certificador_Direccion, Certificador_NIF;
  std::string Certificador_CP, Certificador_Localidad, Certificador_Provincia;
  std::string Certificador_Telefono, Certificador_Movil, Certificador_CIF, Certificador_email;
  std::string Certificador_Colegio_Profesional, Certificador_Profesion;

  // Condiciones que mejora la medida.
  bool CBConfort = false, CBIluminacion = false, CBMovilidad = false, CBSeguridad = false;
  bool CBAccesibilidad = false, CBIncendios = false, CBSalubridad = false, CBRuido = false;
  bool CBOtros = false;
  int Coste = 0;              ///< posición 0 a 6 de la lista de costes
  int PlazoAmortizacion = 0;  ///< posición 0 a 3 de la lista de plazos
  // Intervenciones.
  bool CBHuecos = false, CBCubiertas = false, CBFachadas = false, CBSuelos = false;
  bool CBMedianeras = false, CBSombras = false, CBGeneracionTermica = false, CBRenovables = false;
  bool CBIluminacion2 = false, CBDistribucion = false, CBRecuperacion = false, CBOtras = false;
  bool CBUsoIntervencion = false;

  /// Memos de la definición, hasta 40 líneas cada uno. 0 recomendaciones o descripción de la
  /// mejora, 1 a 3 las visitas, 4 a 6 las observaciones, 7 la secuencia u otros datos.
  std::array<std::vector<std::string>, kMemos> Memo;

  std::string Tipo;            ///< uso: "Residencial" o un perfil terciario
  std::string Tiposimulacion;  ///< "Certificacion", "CertificacionSolo" o "Simulacion"
  std::string MedidaMejora;

  // Valores máximos del uso.
  float Sensibleocupantes = 0, Latenteocupantes = 0;  ///< W/m2
  float Ventilacion = 0;                              ///< m3/h
  float Iluminacion = 0, Equipos = 0;                 ///< W/m2
  float Lux = 0, VEII = 0, VEIIMax = 0, EPotIluMax = 0, Qescaparates = 0;
  std::string TipoVEIIMax;
  float QOCUPSSimple = 0, QOCUPLSimple = 0;
  float Nm2_p = 0;
  std::string Actividad, CriterioACS;

  Perfiles perfiles;

  float Aporte_solar_tanto_por_cien = 0;  ///< %
  std::string Existe_fotovoltaica = "No";
  float Aporte_fotovoltaico_kwh_ano = 0;
  std::string Uso_fotovoltaico = "Refrigeracion";
  std::string Tipon50 = "Teorico";
  float Valorn50 = 0;
  std::string TipoVentilacion2 = "Hibrida";
  std::string ManejoVentanas2 = "Abiertas";
  std::string ManejoVentilacion = "TomaUT";
  std::string TipoCO2 = "Coef. operacionales";
  std::string ControlVent = "Control por compuertas";
  std::string UTAFreeCooling = "FreeCoolingTermico";
  std::string UTAHumectacion = "HumectadorNo";
  float TminFreeCooling = 10, CaudalUTA = 0, RendVentToma = 0.6F, PerdPresionToma = 75;
  std::string Recuperador = "No";
  float Eficiencia_recuperador = 75, Eficiencia_recuperador_Ental = 25;  ///< %
  float ERelaMasa = 1;
  float WRecuperador = 100, WRecuperadorr = 25;      ///< W
  float Teminrec = 15, Temaxrec = 30, TminImp = 14;  ///< °C
  float HRmin = 30;                                  ///< %
  float NEquiposVent = 1;
  float SuperficieTotalHE5 = 0, SuperficieCubiertaHE5 = 0, SuperficieCaptadorestermHE5 = 0;
  float NVBloqueF = 1;
  std::string RehabIntegralHE5 = "No";
  float ConsumoAgua_litros_dia = 0;

  // Tres campos fotovoltaicos: kW, m2, grados.
  std::array<float, 3> PotPico_FV{}, Super_FV{}, Az_FV{}, Incli_FV{};
  float PSuciedad_FV = 6, PTcelula_FV = 9, PConversor_FV = 4;  ///< %

  // Instalación solar térmica.
  int N_colec_term = 0;
  float Sup_colec_term = 2, Incli_colec_term = 0, Azimut_colec_term = 0;
  float AA_colec_term = 0.6722F, BB_colec_term = 3.8074F, CC_colec_term = 0.0098F;
  int Tipo_Inst_ST = 0;
  float Volumen_Dep_ST = 0, LD_Dep_ST = 0, UA_Dep_ST = 0;
  float Caudal_Col_ST = 0, PerdP_Col_ST = 4, Caudal_Dep_ST = 0, PerdP_Dep_ST = 2;
  float Caudal_Rec_ST = 0, PerdP_Rec_ST = 0, Efi_Inter_ST = 70, Long_Tub_ST = 60;
  float PerdCalor_Tub_ST = 0.2F, Control_Tmin_ST = 2, Area_Serp_ST = 0;
  float WBombRECST = 0, WBombCAPST = 0, WBombDEPST = 0;

  std::array<std::string, 3> FechaVisita, FechaObservacion;
  float NumeroVisitas = 0, NumeroObservaciones = 0;

  /// Residencial es todo uso con `PerfilUso` menor que 3.
  bool EsResidencial() const { return PerfilUso < 3; }
  bool operator==(const DatosGenerales&) const = default;
};

/// El modo de trabajo que sigue del tipo de certificado: solo la obra nueva es "Nuevo".
inline std::string ModoTrabajoDe(const std::string& tipoCertificado) {
  const bool nuevo =
      tipoCertificado == "ProyectoNuevaConstruccion" || tipoCertificado == "ObraNuevaConstruccion";
  return nuevo ? "Nuevo" : "Existente";
}

}  // namespace novex
