#include "base/Texto.h"
#include "files/ComunidadAutonoma.h"
#include "files/LimitesProyecto.h"
#include "files/SeccionesProyecto.h"
#include "files/VersionProyecto.h"

namespace novex {
namespace {

using R = RegistrosCaso;
using D = DatosGenerales;
using L = Localizacion;
using O = ObstaculosRemotos;
constexpr auto g = &R::generales;
constexpr auto l = &R::localizacion;
constexpr auto o = &R::obstaculos;

constexpr std::string_view kSeccion = "Datos_Generales";
constexpr std::string_view kReferencias = "ReferenciasCatastrales";
constexpr std::string_view kReferencia = "Ref";
constexpr std::string_view kInalterables = "ElementosInalterables";
constexpr std::string_view kInalterable = "Elemento";
constexpr std::string_view kObstaculos = "Obstaculos_remotos";
constexpr std::string_view kImagen = "Imagen";
constexpr std::string_view kPlano = "Plano";
constexpr std::string_view kSinProteccion = "Ninguna";

constexpr auto kUso = Texto<g, &D::Uso>("Uso");

constexpr std::array kHastaAlcance = {Texto<g, &D::Tiposimulacion>("Tiposimulacion"),
                                      Texto<g, &D::Equipos_Defecto>("Equipos_Defecto"),
                                      Entero<l, &L::mesmin>("mesmin").Entre(0, 13),
                                      Entero<l, &L::mesmax>("mesmax").Entre(0, 13),
                                      Texto<g, &D::Fecha>("Fecha"),
                                      Texto<g, &D::Modo_Vision>("Modo_Vision"),
                                      Texto<g, &D::TipoCertificado>("TipoCertificado"),
                                      Entero<g, &D::PerfilUso>("PerfilUso").Entre(0, 15),
                                      kUso,
                                      Texto<g, &D::Reforma>("Reforma"),
                                      Texto<g, &D::Alcance>("Alcance")};

constexpr std::array kDireccion = {
    Texto<g, &D::Edificio_Titulo>("Edificio_Titulo"), Texto<g, &D::Direccion>("Direccion"),
    Texto<l, &L::Provincia>("Provincia"), Texto<l, &L::Municipio>("Municipio")};

constexpr std::array kCodigoPostal = {Texto<g, &D::CodigoPostal>("CodigoPostal")};

constexpr std::array kRegistro = {
    Texto<&R::pantalla, &DatosPantalla::Registro>("Registro").Guardado()};
constexpr std::array kFilaReferencia = {Texto<&ReferenciaCatastral::Parcela>("Parcela"),
                                        Texto<&ReferenciaCatastral::Inmueble>("Inmueble"),
                                        Texto<&ReferenciaCatastral::Parte>("Parte")};
constexpr std::array kFilaInalterable = {Texto<&ElementoInalterable::Tipo>("Tipo"),
                                         Texto<&ElementoInalterable::Descripcion>("Descripcion")};

constexpr std::array kNormativa = {
    Texto<g, &D::AnoConstruccion>("AnoConstruccion"),
    Texto<g, &D::NormativaEdificacion>("NormativaEdificacion"),
    Texto<g, &D::NormativaInstalaciones>("NormativaInstalaciones"),
    Texto<g, &D::Otra_legislacion_aplicable>("Otra_legislacion_aplicable"),
    Texto<g, &D::GradoProteccion>("GradoProteccion")};

constexpr std::array kSitioYCertificador = {
    Texto<l, &L::ZonaClimatica>("ZonaClimatica"),
    Entero<l, &L::asnm>("asnm"),
    Entero<l, &L::Pt>("Pt"),
    Texto<l, &L::Cambio_zona_temperatura>("Cambio_zona_temperatura"),
    Texto<l, &L::zona_radiante>("zona_radiante"),
    Real<l, &L::latitud>("latitud", 5),
    Texto<g, &D::Certificador_Nombre>("Certificador_Nombre"),
    Texto<g, &D::Certificador_NIF>("Certificador_NIF"),
    Texto<g, &D::Certificador_Empresa>("Certificador_Empresa"),
    Texto<g, &D::Certificador_CIF>("Certificador_CIF"),
    Texto<g, &D::Certificador_Direccion>("Certificador_Direccion"),
    Texto<g, &D::Certificador_Localidad>("Certificador_Localidad"),
    Texto<g, &D::Certificador_Provincia>("Certificador_Provincia"),
    Texto<g, &D::Certificador_CP>("Certificador_CP"),
    Texto<g, &D::Certificador_email>("Certificador_email"),
    Texto<g, &D::Certificador_Profesion>("Certificador_Profesion"),
    Texto<g, &D::Certificador_Movil>("Certificador_Movil")};

constexpr std::array kCamposObstaculos = {Real<o, &O::Oeste_Altura>("Oeste_Altura", 2),
                                          Real<o, &O::Oeste_Distancia>("Oeste_Distancia", 2),
                                          Real<o, &O::SurOeste_Altura>("SurOeste_Altura", 2),
                                          Real<o, &O::SurOeste_Distancia>("SurOeste_Distancia", 2),
                                          Real<o, &O::Sur_Altura>("Sur_Altura", 2),
                                          Real<o, &O::Sur_Distancia>("Sur_Distancia", 2),
                                          Real<o, &O::SurEste_Altura>("SurEste_Altura", 2),
                                          Real<o, &O::SurEste_Distancia>("SurEste_Distancia", 2),
                                          Real<o, &O::Este_Altura>("Este_Altura", 2),
                                          Real<o, &O::Este_Distancia>("Este_Distancia", 2)};

template <class Fila>
void LeerFilas(const XMLNode& nodo, std::string_view etiqueta, std::span<const Campo<Fila>> campos,
               std::string_view que, std::vector<Fila>& filas, Mensajes& mensajes) {
  filas.clear();
  std::size_t i = 0;
  while (const XMLNode hijo = nodo.childNamed(etiqueta, &i)) {
    LeerCampos(hijo, campos, filas.emplace_back(), mensajes);
    limiteProyecto::Comprobar(que, filas.size(), limiteProyecto::kFilas);
  }
}

template <class Fila>
void EscribirFilas(XMLNode& nodo, std::string_view etiqueta, std::span<const Campo<Fila>> campos,
                   std::vector<Fila>& filas) {
  for (Fila& fila : filas) {
    XMLNode hijo = nodo.appendChild(etiqueta);
    EscribirCampos(hijo, campos, fila);
  }
}

// El bloque de una imagen acaba en el primer "]]>"; un elemento sin bloque es una imagen sin texto.
std::shared_ptr<const std::string> LeerImagen(const XMLNode& nodo) {
  if (!nodo) return nullptr;
  return std::make_shared<const std::string>(nodo.clearAt(0).value_or(""));
}

void EscribirImagen(XMLNode& nodo, std::string_view etiqueta,
                    const std::shared_ptr<const std::string>& imagen) {
  if (!imagen) return;
  XMLNode hijo = nodo.appendChild(etiqueta);
  if (!imagen->empty()) hijo.appendClear(*imagen);
}

// Viviendas del bloque; una sola unidad en los demás usos.
int UnidadesDeUso(const R& r) {
  return r.generales.PerfilUso == 1 ? r.ventilacion.NumeroViviendas() : 1;
}

std::string_view Escala(int perfilUso) {
  if (perfilUso == 0) return "ViviendaUnifamiliar";
  return perfilUso < 3 ? "ViviendaBloque" : "Terciario";
}

}  // namespace

void LeerGenerales(const XMLNode& novex, RegistrosCaso& r, Mensajes& mensajes) {
  const XMLNode datos = novex.childNamed(kSeccion);
  LeerCampos<R>(datos, kHastaAlcance, r, mensajes);
  // Los textos de intervención se comparan sin el blanco que algunos llevaban al final.
  r.generales.Reforma = SinBlancosFinales(r.generales.Reforma);
  r.generales.Modo_trabajo = ModoTrabajoDe(r.generales.TipoCertificado);
  LeerCampos<R>(datos, kDireccion, r, mensajes);
  LeerCampos<R>(datos, kCodigoPostal, r, mensajes);
  const XMLNode referencias = datos.childNamed(kReferencias);
  LeerCampos<R>(referencias, kRegistro, r, mensajes);
  LeerFilas<ReferenciaCatastral>(referencias, kReferencia, kFilaReferencia,
                                 "referencias catastrales", r.pantalla.referencias, mensajes);
  LeerCampos<R>(datos, kNormativa, r, mensajes);
  LeerFilas<ElementoInalterable>(datos.childNamed(kInalterables), kInalterable, kFilaInalterable,
                                 "elementos inalterables", r.pantalla.inalterables, mensajes);
  LeerCampos<R>(datos, kSitioYCertificador, r, mensajes);
  LeerImagenes(datos, r);
  LeerObstaculos(novex, datos, r, mensajes);
}

void LeerImagenes(const XMLNode& datos, RegistrosCaso& r) {
  r.pantalla.Imagen = LeerImagen(datos.childNamed(kImagen));
  r.pantalla.Plano = LeerImagen(datos.childNamed(kPlano));
}

void LeerObstaculos(const XMLNode& novex, const XMLNode& datos, RegistrosCaso& r,
                    Mensajes& mensajes) {
  // Las disposiciones más antiguas tienen los obstáculos fuera de los datos generales.
  const XMLNode dentro = datos.childNamed(kObstaculos);
  LeerCampos<R>(dentro ? dentro : novex.childNamed(kObstaculos), kCamposObstaculos, r, mensajes,
                SiFalta::Conservar);
}

void EscribirGenerales(XMLNode& novex, RegistrosCaso& r, bool primero) {
  AnadirValor(novex, kEtiquetaVersion, kVersionActual);
  XMLNode datos = novex.appendChild(kSeccion);
  r.generales.Reforma = SinBlancosFinales(r.generales.Reforma);
  EscribirCampos<R>(datos, kHastaAlcance, r);
  AnadirTexto(datos, "NumUnidadesUso", std::to_string(UnidadesDeUso(r)));
  EscribirCampos<R>(datos, kDireccion, r);
  AnadirValor(datos, "ComunidadAutonoma", ComunidadAutonomaDe(r.localizacion.Provincia));
  EscribirCampos<R>(datos, kCodigoPostal, r);
  XMLNode referencias = datos.appendChild(kReferencias);
  EscribirCampos<R>(referencias, kRegistro, r);
  EscribirFilas<ReferenciaCatastral>(referencias, kReferencia, kFilaReferencia,
                                     r.pantalla.referencias);
  EscribirCampos<R>(datos, kNormativa, r);
  AnadirValor(datos, kUso.etiqueta,
              r.generales.EsResidencial() ? "ResidencialPrivado" : r.generales.Uso);
  if (r.generales.GradoProteccion != kSinProteccion) {
    XMLNode inalterables = datos.appendChild(kInalterables);
    EscribirFilas<ElementoInalterable>(inalterables, kInalterable, kFilaInalterable,
                                       r.pantalla.inalterables);
  }
  EscribirCampos<R>(datos, kSitioYCertificador, r);
  if (primero) {
    EscribirImagen(datos, kImagen, r.pantalla.Imagen);
    EscribirImagen(datos, kPlano, r.pantalla.Plano);
  }
  XMLNode obstaculos = datos.appendChild(kObstaculos);
  EscribirCampos<R>(obstaculos, kCamposObstaculos, r);
}

void EscribirCertificado(XMLNode& novex, const RegistrosCaso& r) {
  const DatosGenerales& d = r.generales;
  XMLNode certificado = novex.appendChild("DatosCertificado");
  AnadirTexto(certificado, "TipoCertificado", d.TipoCertificado);
  AnadirTexto(certificado, "Escala", Escala(d.PerfilUso));
  XMLNode procedimiento = certificado.appendChild("Procedimiento");
  AnadirTexto(procedimiento, "Nombre", kNombrePrograma);
  AnadirTexto(procedimiento, "Version", kVersionPrograma);
  AnadirTexto(certificado, "FechaGeneracion", d.Fecha);
  AnadirTexto(certificado, "FechaCalificacion", d.Fecha);

  XMLNode certificador = novex.appendChild("DatosCertificador");
  AnadirTexto(certificador, "NombreApellidos", d.Certificador_Nombre);
  AnadirTexto(certificador, "Nif", d.Certificador_NIF);
  AnadirTexto(certificador, "RazonSocial", d.Certificador_Empresa);
  AnadirTexto(certificador, "NifEntidad", d.Certificador_CIF);
  AnadirTexto(certificador, "Domicilio", d.Certificador_Direccion);
  AnadirTexto(certificador, "Municipio", d.Certificador_Localidad);
  AnadirTexto(certificador, "CodigoPostal", d.Certificador_CP);
  AnadirTexto(certificador, "Certificador_Provincia", d.Certificador_Provincia);
  AnadirTexto(certificador, "Certificador_ComunidadAutonoma",
              ComunidadAutonomaDe(d.Certificador_Provincia));
  AnadirTexto(certificador, "Email", d.Certificador_email);
  AnadirTexto(certificador, "Telefono", d.Certificador_Movil);
  AnadirTexto(certificador, "Titulacion", d.Certificador_Profesion);
}

void AnadirTablasGenerales(std::vector<TablaCampos>& tablas) {
  tablas.push_back({"", kHastaAlcance, 1});
  tablas.push_back({"", kDireccion, 1});
  tablas.push_back({"", kCodigoPostal, 1});
  tablas.push_back({"", kRegistro, 1});
  tablas.push_back({"", kNormativa, 1});
  tablas.push_back({"", kSitioYCertificador, 1});
  tablas.push_back({"", kCamposObstaculos, 1});
}

}  // namespace novex
