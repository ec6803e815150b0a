#include <algorithm>
#include <initializer_list>
#include <string>

#include "base/Texto.h"
#include "files/DerivacionesAntiguas.h"
#include "files/SeccionesProyecto.h"
#include "model/DatosPantalla.h"

namespace novex {
namespace {

using R = RegistrosCaso;
using D = DatosGenerales;
using L = Localizacion;
constexpr auto g = &R::generales;
constexpr auto l = &R::localizacion;

constexpr std::string_view kSeccion = "Datos_Generales";
constexpr std::string_view kSeccionSitio = "Datos_Geograficos";
constexpr std::string_view kSeccionUso = "Datos_Uso";
constexpr std::string_view kTipologia = "Tipologia_edificio";
constexpr std::string_view kTipoCertificado = "Tipo_certificado";
constexpr std::string_view kSinElemento = "Ninguno";
constexpr std::string_view kSinProteccion = "Ninguna";

constexpr std::array kTrabajo = {
    Texto<g, &D::Modo_trabajo>("Modo_trabajo"),
    Texto<g, &D::Modo_Vision>("Modo_Vision"),
    Texto<g, &D::Equipos_Defecto>("Equipos_Defecto"),
    Texto<g, &D::Reforma>("TipoCalculoHE"),
    Texto<g, &D::Fecha>("Fecha"),
};

// Solo de las versiones que definen el tipo de certificado, el uso y el alcance.
constexpr std::array kUsoYAlcance = {
    Texto<g, &D::Uso>("Uso"),
    Texto<g, &D::Alcance>("Alcance"),
    Texto<g, &D::NormativaEdificacion>("Norma_Edificacion"),
    Texto<g, &D::NormativaInstalaciones>("Norma_Inst_Termicas"),
    Texto<g, &D::Otra_legislacion_aplicable>("Otra_legislacion_aplicable"),
    Texto<&R::pantalla, &DatosPantalla::Registro>("Catastro"),
    Texto<g, &D::GradoProteccion>("Grado_de_proteccion"),
    Texto<g, &D::ElementoInalterable>("Elemento_inalterable"),
};

constexpr std::array kEdificio = {
    Texto<g, &D::Edificio_Titulo>("Edificio_Titulo"),
    Texto<g, &D::ReferenciaCatastral>("ReferenciaCatastral"),
    Texto<g, &D::AnoConstruccion>("AnoConstruccion"),
    Texto<g, &D::NormativaVigente>("NormativaVigente"),
    Texto<g, &D::Direccion>("Edificio_Direccion"),
    Texto<g, &D::CodigoPostal>("Edificio_CP"),
    Texto<g, &D::NExpedienteP>("NExpedienteP"),
    Texto<g, &D::NExpediente_ICE>("NExpediente_ICE"),
};

constexpr std::array kCertificador = {
    Texto<g, &D::Certificador_Empresa>("Certificador_Empresa"),
    Texto<g, &D::Certificador_Nombre>("Certificador_Nombre"),
    Texto<g, &D::Certificador_Direccion>("Certificador_Direccion"),
    Texto<g, &D::Certificador_NIF>("Certificador_NIF"),
    Texto<g, &D::Certificador_CP>("Certificador_CP"),
    Texto<g, &D::Certificador_Localidad>("Certificador_Localidad"),
    Texto<g, &D::Certificador_Provincia>("Certificador_Provincia"),
    Texto<g, &D::Certificador_Telefono>("Certificador_Telefono"),
    Texto<g, &D::Certificador_Movil>("Certificador_Movil"),
    Texto<g, &D::Certificador_CIF>("Certificador_CIF"),
    Texto<g, &D::Certificador_email>("Certificador_email"),
    Texto<g, &D::Certificador_Colegio_Profesional>("Certificador_Colegio_Profesional"),
    Texto<g, &D::Certificador_Profesion>("Certificador_Profesion"),
};

constexpr std::array kProyectista = {
    Texto<g, &D::Proyectista_Apellidos>("Proyectista_Apellidos"),
    Texto<g, &D::Proyectista_Nombre>("Proyectista_Nombre"),
    Texto<g, &D::Proyectista_Direccion>("Proyectista_Direccion"),
    Texto<g, &D::Proyectista_NIF>("Proyectista_NIF"),
    Texto<g, &D::Proyectista_CP>("Proyectista_CP"),
    Texto<g, &D::Proyectista_Localidad>("Proyectista_Localidad"),
    Texto<g, &D::Proyectista_Provincia>("Proyectista_Provincia"),
    Texto<g, &D::Proyectista_Telefono>("Proyectista_Telefono"),
    Texto<g, &D::Proyectista_email>("Proyectista_email"),
    Texto<g, &D::Proyectista_Empresa>("Proyectista_Empresa"),
    Texto<g, &D::Proyectista_N_Colegiado>("Proyectista_N_Colegiado"),
    Texto<g, &D::Proyectista_Colegio_Profesional>("Proyectista_Colegio_Profesional"),
    Texto<g, &D::Proyectista_Profesion>("Proyectista_Profesion"),
};

constexpr std::array kSitio = {
    Texto<l, &L::Provincia>("Provincia"),
    Texto<l, &L::Municipio>("Ciudad"),
    Entero<l, &L::asnm>("asnm"),
    Entero<l, &L::Pt>("Pt"),
    Entero<l, &L::mesmin>("mesmin").Entre(0, 13),
    Entero<l, &L::mesmax>("mesmax").Entre(0, 13),
    Texto<l, &L::ZonaClimatica>("zona_temperatura"),
    Texto<l, &L::Cambio_zona_temperatura>("Cambio_zona_temperatura"),
    Real<l, &L::latitud>("latitud", 5),
    Texto<l, &L::zona_radiante>("zona_radiante"),
};

std::string Paso(std::string_view que, std::string_view de, std::string_view a) {
  return std::string(que) + ": \"" + std::string(de) + "\" pasa a \"" + std::string(a) + "\"";
}

void LeerPerfil(const XMLNode& datos, R& r) {
  const std::string tipologia = TextoDeHijo(datos, kTipologia);
  const auto perfil = PerfilUsoDeTipologia(tipologia, r.generales.Tipo);
  InformeLectura& informe = r.informe;
  r.generales.PerfilUso = perfil.value_or(0);
  const auto nombre = kNombrePerfilUso.at(static_cast<std::size_t>(r.generales.PerfilUso));
  if (perfil)
    informe.Anotar(informe.cambiados, Paso(kTipologia, tipologia, nombre));
  else
    informe.Anotar(informe.porDefecto,
                   std::string(kTipologia) + ": \"" + std::string(nombre) + "\"");
}

// El tipo de certificado que dice el fichero o, si no lo dice, el de su tipo de cálculo o su modo
// de trabajo.
void PonerTipoCertificado(const XMLNode& datos, R& r) {
  D& d = r.generales;
  d.Reforma = SinBlancosFinales(d.Reforma);
  if (const auto dicho = ValorDeHijo(datos, kTipoCertificado)) {
    d.TipoCertificado = *dicho;
    return;
  }
  for (const std::string& origen : {d.Reforma, d.Modo_trabajo}) {
    const std::string tipo = TipoCertificadoDe(origen);
    if (tipo.empty()) continue;
    d.TipoCertificado = tipo;
    if (tipo == origen) return;
    r.informe.Anotar(r.informe.cambiados, Paso("Tipo de certificado", origen, tipo));
    return;
  }
  r.informe.Anotar(r.informe.porDefecto, "Tipo de certificado: \"" + d.TipoCertificado + "\"");
}

// El modo de trabajo no se guarda: es el de su tipo de certificado, que es el que tendrá al volver
// a abrirlo.
void PonerModoTrabajo(R& r) {
  D& d = r.generales;
  const std::string modo = ModoTrabajoDe(d.TipoCertificado);
  if (!d.Modo_trabajo.empty() && d.Modo_trabajo != modo)
    r.informe.Anotar(r.informe.cambiados, Paso("Modo de trabajo", d.Modo_trabajo, modo));
  d.Modo_trabajo = modo;
}

void PonerUsoYAlcanceFijos(R& r) {
  D& d = r.generales;
  d.Uso = "Otro";
  d.Alcance = "Completo";
  r.pantalla.Registro = "DGC";
  d.GradoProteccion = kSinProteccion;
  d.ElementoInalterable = kSinElemento;
  r.informe.Anotar(
      r.informe.porDefecto,
      "Uso \"Otro\", alcance \"Completo\", catastro \"DGC\" y edificio sin protección");
}

// Lo que hoy está en una lista entra como su primera fila.
void PasarAListas(R& r) {
  const D& d = r.generales;
  if (!d.ReferenciaCatastral.empty() && r.pantalla.referencias.empty()) {
    r.pantalla.referencias.push_back(FilaDeReferencia(d.ReferenciaCatastral));
    r.informe.Anotar(r.informe.cambiados, "Referencia catastral \"" + d.ReferenciaCatastral +
                                              "\": pasa a la lista de referencias");
  }
  const bool hayElemento = !d.ElementoInalterable.empty() && d.ElementoInalterable != kSinElemento;
  if (hayElemento && d.GradoProteccion != kSinProteccion)
    r.pantalla.inalterables.push_back({d.ElementoInalterable, ""});
}

void PonerPeriodo(R& r) {
  std::string& ano = r.generales.AnoConstruccion;
  const std::string periodo = PeriodoConstruccionDe(ano);
  if (periodo == ano) return;
  r.informe.Anotar(r.informe.cambiados, Paso("Año de construcción", ano, periodo));
  ano = periodo;
}

// Elementos de una sección que no son de ninguna tabla.
void AnotarDesconocidos(const XMLNode& seccion, std::string_view nombre,
                        std::initializer_list<std::span<const Campo<R>>> tablas,
                        std::initializer_list<std::string_view> demas, InformeLectura& informe) {
  for (std::size_t i = 0; i < seccion.childCount(); ++i) {
    const std::string etiqueta(seccion.childAt(i).nameOf().value_or(""));
    const auto es = [&etiqueta](std::string_view e) { return IgualesSinMayusculas(e, etiqueta); };
    const bool enTabla = std::any_of(tablas.begin(), tablas.end(), [&](const auto& tabla) {
      return std::any_of(tabla.begin(), tabla.end(), [&](const auto& c) { return es(c.etiqueta); });
    });
    if (!enTabla && std::none_of(demas.begin(), demas.end(), es))
      informe.Anotar(informe.saltados, std::string(nombre) + "/" + etiqueta);
  }
}

// Los meses de verano de todos los perfiles de uso, si el fichero no los dice.
void PonerMesesVerano(L& sitio, InformeLectura& informe) {
  if (sitio.mesmin != 0 || sitio.mesmax != 0) return;
  sitio.mesmin = 6;
  sitio.mesmax = 9;
  informe.Anotar(informe.porDefecto, "Meses de verano: de junio a septiembre");
}

void LeerSitio(const XMLNode& novex, R& r, Mensajes& mensajes) {
  const XMLNode seccion = novex.childNamed(kSeccionSitio);
  LeerCampos<R>(seccion, kSitio, r, mensajes, r.siFalta);
  AnotarDesconocidos(seccion, kSeccionSitio, {kSitio}, {}, r.informe);
  L& sitio = r.localizacion;
  PonerMesesVerano(sitio, r.informe);
  if (!sitio.Provincia.empty() && !sitio.Municipio.empty()) return;
  mensajes.Avisar("AVISO", "No se ha identificado la ciudad/provincia");
  sitio.Provincia = "Valencia/València";
  sitio.Municipio = "Valencia";
  sitio.asnm = 23;
  if (sitio.ZonaClimatica.empty()) sitio.ZonaClimatica = "B3";
  r.informe.Anotar(r.informe.porDefecto, "Provincia y municipio: \"" + sitio.Municipio + "\"");
}

}  // namespace

void LeerGeneralesAntiguos(const XMLNode& novex, const ReglasVersion& reglas, RegistrosCaso& r,
                           Mensajes& mensajes) {
  const XMLNode datos = novex.childNamed(kSeccion);
  const XMLNode uso = novex.childNamed(kSeccionUso);
  r.generales.Tipo = TextoDeHijo(uso, "Tipo");
  r.generales.Tiposimulacion = TextoDeHijo(uso, "Tiposimulacion");
  LeerPerfil(datos, r);
  LeerCampos<R>(datos, kTrabajo, r, mensajes, r.siFalta);
  PonerTipoCertificado(datos, r);
  PonerModoTrabajo(r);
  if (reglas.usoYAlcance)
    LeerCampos<R>(datos, kUsoYAlcance, r, mensajes, r.siFalta);
  else
    PonerUsoYAlcanceFijos(r);
  LeerCampos<R>(datos, kEdificio, r, mensajes, r.siFalta);
  LeerCampos<R>(datos, kCertificador, r, mensajes, r.siFalta);
  LeerCampos<R>(datos, kProyectista, r, mensajes, r.siFalta);
  PonerPeriodo(r);
  DejarUnTelefono(r.generales, r.informe);
  PasarAListas(r);
  AnotarSinSitio(r.generales, r.informe);
  const std::span<const Campo<R>> soloNuevas =
      reglas.usoYAlcance ? std::span<const Campo<R>>(kUsoYAlcance) : std::span<const Campo<R>>();
  AnotarDesconocidos(
      datos, kSeccion, {kTrabajo, soloNuevas, kEdificio, kCertificador, kProyectista},
      {kTipologia, kTipoCertificado, "Imagen", "Plano", "Obstaculos_remotos"}, r.informe);
  LeerSitio(novex, r, mensajes);
  LeerImagenes(datos, r);
  LeerObstaculos(novex, datos, r, mensajes);
}

}  // namespace novex
