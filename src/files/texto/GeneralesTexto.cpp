#include <algorithm>
#include <limits>

#include "base/Texto.h"
#include "files/DerivacionesAntiguas.h"
#include "files/texto/EtiquetaTexto.h"
#include "files/texto/LugaresAntiguos.h"
#include "files/texto/TipologiasTexto.h"

namespace novex {
namespace {

using R = RegistrosCaso;
using D = DatosGenerales;
using L = Localizacion;
using O = ObstaculosRemotos;
using enum GeneracionTexto;
constexpr auto g = &R::generales;
constexpr auto l = &R::localizacion;
constexpr auto o = &R::obstaculos;

constexpr std::array<std::string_view, 4> kTipologiasEdificio = {"Unifamiliar", "Bloque",
                                                                 "ViviendaBloque", "Terciario"};
constexpr int kTerciario = 3;

// Guarda un texto para unirlo después a otro.
template <std::string EstadoTexto::*Miembro>
void Apartar(EstadoTexto& e, const ValorTexto& valor) {
  e.*Miembro = valor.texto;
}

void LeerTipologiaEdificio(EstadoTexto& e, const ValorTexto& valor) {
  const auto tipo = camposFichero::LeerPosicion(SinBlancos(valor.texto), kTipologiasEdificio);
  if (!tipo) return e.Saltar(valor, "no es ninguno de los valores conocidos");
  e.terciario = *tipo == kTerciario;
  e.r.generales.PerfilUso = *tipo;
}

void LeerModoTrabajo(EstadoTexto& e, const ValorTexto& valor) {
  const std::string modo(SinBlancos(valor.texto));
  const std::string tipo = TipoCertificadoDe(modo);
  if (tipo.empty()) return e.Saltar(valor, "no es ninguno de los valores conocidos");
  e.r.generales.TipoCertificado = tipo;
  e.r.generales.Modo_trabajo = ModoTrabajoDe(tipo);
  e.Cambiar(valor, "tipo de certificado \"" + tipo + "\"");
}

void LeerReferenciaCatastral(EstadoTexto& e, const ValorTexto& valor) {
  const std::string referencia(SinBlancos(valor.texto));
  e.r.generales.ReferenciaCatastral = referencia;
  e.r.pantalla.referencias.clear();
  if (referencia.empty()) return;
  ReferenciaCatastral fila = FilaDeReferencia(referencia);
  if (!fila.Inmueble.empty())
    e.Cambiar(valor, "parcela " + fila.Parcela + ", inmueble " + fila.Inmueble);
  e.r.pantalla.referencias.push_back(std::move(fila));
}

void LeerAno(EstadoTexto& e, const ValorTexto& valor) {
  const std::string ano(SinBlancos(valor.texto));
  e.r.generales.AnoConstruccion = PeriodoConstruccionDe(ano);
  if (e.r.generales.AnoConstruccion != ano) e.Cambiar(valor, e.r.generales.AnoConstruccion);
}

void LeerLegislacion(EstadoTexto& e, const ValorTexto& valor) {
  e.r.generales.NormativaVigente = valor.texto;
  e.r.generales.Otra_legislacion_aplicable = valor.texto;
}

template <int L::*Indice>
void LeerIndice(EstadoTexto& e, const ValorTexto& valor) {
  // Un número que no vale no es la primera de la lista.
  const int indice =
      e.LeerEntero(valor, std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
  e.r.localizacion.*Indice = indice;
  e.conIndices = true;
}

void LeerAltitud(EstadoTexto& e, const ValorTexto& valor) {
  e.r.localizacion.asnm = e.LeerEntero(valor, -1000, 9000);
  e.dicho.conAltitud = true;
}

constexpr std::array kGenerales = {
    Accion("*[S] Tipologia edificio: Unifamiliar/Bloque/Terciario.", LeerTipologiaEdificio),
    Accion("*[S] Modo trabajo: Existente/Nuevo.", LeerModoTrabajo),
    Fila(Texto<g, &D::Fecha>("*[S] Fecha.")),
    Fila(Texto<g, &D::NExpedienteP>("*[S] NºExpedienteP.")),
    Fila(Texto<g, &D::NExpediente_ICE>("*[S] NºExpediente ICE.")),
    Fila(Texto<g, &D::Edificio_Titulo>("*[S] Edificio Titulo.")),
    Fila(Texto<g, &D::Direccion>("*[S] Edificio Direccion.")),
    Accion("*[S] Edificio Nº.", Apartar<&EstadoTexto::numero>),
    Accion("*[S] Edificio Esc.", Apartar<&EstadoTexto::escalera>),
    Fila(Texto<g, &D::CodigoPostal>("*[S] Edificio Código Postal.")),
    Fila(Texto<l, &L::Municipio>("*[S] Edificio Localidad.")),
    Fila(Texto<l, &L::Provincia>("*[S] Edificio Provincia.")),
    Accion("*[S] Certificador Apellidos.", Apartar<&EstadoTexto::apellidos>).En(Primera, Tercera),
    Fila(Texto<g, &D::Certificador_Nombre>("*[S] Certificador Nombre.")).En(Primera, Tercera),
    Fila(Texto<g, &D::Certificador_Direccion>("*[S] Certificador Direccion.")).En(Primera, Tercera),
    Fila(Texto<g, &D::Certificador_NIF>("*[S] Certificador NIF.")).En(Primera, Tercera),
    Fila(Texto<g, &D::Certificador_CP>("*[S] Certificador CP.")).En(Primera, Tercera),
    Fila(Texto<g, &D::Certificador_Localidad>("*[S] Certificador Localidad.")).En(Primera, Tercera),
    Fila(Texto<g, &D::Certificador_Provincia>("*[S] Certificador Provincia.")).En(Primera, Tercera),
    Fila(Texto<g, &D::Certificador_Telefono>("*[S] Certificador Telefono.")).En(Primera, Tercera),
    Fila(Texto<g, &D::Certificador_Movil>("*[S] Certificador Movil.")).En(Primera, Tercera),
    Fila(Texto<g, &D::Certificador_email>("*[S] Certificador email.")).En(Primera, Tercera),
    Fila(Texto<g, &D::Certificador_Empresa>("*[S] Certificador Empresa.")).En(Primera, Tercera),
    Fila(Texto<g, &D::Certificador_Colegio_Profesional>("*[S] Certificador Colegio Profesional."))
        .En(Primera, Tercera),
    Fila(Texto<g, &D::Certificador_Profesion>("*[S] Certificador Profesion.")).En(Primera, Tercera),
    Fila(Texto<g, &D::Proyectista_Apellidos>("*[S] Proyectista Apellidos.")).En(Segunda),
    Fila(Texto<g, &D::Proyectista_Nombre>("*[S] Proyectista Nombre.")).En(Segunda),
    Fila(Texto<g, &D::Proyectista_Direccion>("*[S] Proyectista Direccion.")).En(Segunda),
    Fila(Texto<g, &D::Proyectista_NIF>("*[S] Proyectista NIF.")).En(Segunda),
    Fila(Texto<g, &D::Proyectista_CP>("*[S] Proyectista CP.")).En(Segunda),
    Fila(Texto<g, &D::Proyectista_Localidad>("*[S] Proyectista Localidad.")).En(Segunda),
    Fila(Texto<g, &D::Proyectista_Provincia>("*[S] Proyectista Provincia.")).En(Segunda),
    Fila(Texto<g, &D::Proyectista_Telefono>("*[S] Proyectista Telefono.")).En(Segunda),
    Accion("*[S] Proyectista Movil.", SinSitio).En(Segunda),
    Fila(Texto<g, &D::Proyectista_email>("*[S] Proyectista email.")).En(Segunda),
    Fila(Texto<g, &D::Proyectista_Empresa>("*[S] Proyectista Empresa.")).En(Segunda),
    Fila(Texto<g, &D::Proyectista_Colegio_Profesional>("*[S] Proyectista Colegio Profesional."))
        .En(Segunda),
    Fila(Texto<g, &D::Proyectista_Profesion>("*[S] Proyectista Profesion.")).En(Segunda),
    Accion("*[S] Referencia Catastral.", LeerReferenciaCatastral).En(Tercera),
    Accion("*[S] Ano Construccion.", LeerAno).En(Tercera),
    Accion("*[S] Legislacion aplicable.", LeerLegislacion).En(Tercera),
    Fila(Texto<g, &D::Certificador_CIF>("*[S] CIF certificador.")).En(Tercera),
    filaTipologia::kTotal,
    filaTipologia::kNumero,
    filaTipologia::kViviendas,
    filaTipologia::kDobles,
    filaTipologia::kSimples,
    filaTipologia::kSalas,
    filaTipologia::kBanos};

constexpr std::array kGeograficos = {
    Accion("*[I] Indice Provincia datos climáticos.", LeerIndice<&L::indiceProvincia>),
    Accion("*[I] Indice Ciudad datos climáticos.", LeerIndice<&L::indiceCiudad>),
    Fila(Texto<l, &L::Localidad>("*[S] Localidad datos climáticos.")),
    Accion("*[I] Altura sobre nivel mar.", LeerAltitud),
    Fila(Real<l, &L::latitud>("*[F] Latitud.", 0)),
    Salto("*[S] Indice Zona climatica HE4:  I/II/III/IV/V."),
    Accion("*[S] Ciudadxml.", Apartar<&EstadoTexto::ciudadXml>).En(Tercera),
    Accion("*[S] Provinciaxml.", Apartar<&EstadoTexto::provinciaXml>).En(Tercera),
    Fila(Real<o, &O::Oeste_Altura>("*[F] Sombra O - h.", 0)),
    Fila(Real<o, &O::Oeste_Distancia>("*[F] Sombra O - d.", 0)),
    Fila(Real<o, &O::SurOeste_Altura>("*[F] Sombra SO - h.", 0)),
    Fila(Real<o, &O::SurOeste_Distancia>("*[F] Sombra SO - d.", 0)),
    Fila(Real<o, &O::Sur_Altura>("*[F] Sombra S - h.", 0)),
    Fila(Real<o, &O::Sur_Distancia>("*[F] Sombra S - d.", 0)),
    Fila(Real<o, &O::SurEste_Altura>("*[F] Sombra SE - h.", 0)),
    Fila(Real<o, &O::SurEste_Distancia>("*[F] Sombra SE - d.", 0)),
    Fila(Real<o, &O::Este_Altura>("*[F] Sombra E - h.", 0)),
    Fila(Real<o, &O::Este_Distancia>("*[F] Sombra E - d.", 0))};

// Une dos textos que hoy van en un solo campo.
void Unir(std::string& campo, const std::string& resto, std::string_view entre) {
  const std::string_view limpio = SinBlancos(resto);
  if (limpio.empty()) return;
  if (!campo.empty()) campo += entre;
  campo += limpio;
}

void UnirPartes(EstadoTexto& e) {
  D& d = e.r.generales;
  const std::string direccion = d.Direccion, nombre = d.Certificador_Nombre;
  Unir(d.Direccion, e.numero, ", ");
  Unir(d.Direccion, e.escalera, ", Esc. ");
  Unir(d.Certificador_Nombre, e.apellidos, " ");
  const auto decir = [&e](std::string_view que, const std::string& antes, const std::string& hoy) {
    if (antes != hoy)
      InformeLectura::Anotar(e.informe.cambiados, std::string(que) + " -> \"" + hoy + "\"");
  };
  decir("Dirección, número y escalera del edificio, en un campo", direccion, d.Direccion);
  decir("Nombre y apellidos del certificador, en un campo", nombre, d.Certificador_Nombre);
  DejarUnTelefono(d, e.informe);
  AnotarSinSitio(d, e.informe);
}

// Uso de un terciario por su carga interna y sus horas de ocupación.
int PerfilTerciario(const EstadoTexto& e) {
  constexpr std::array<std::string_view, 3> kCargas = {"Baja", "Media", "Alta"};
  constexpr std::array<int, 4> kHoras = {8, 12, 16, 24};
  constexpr int kPrimerPerfil = 3;
  // Lo que tenía un recinto al que no se le cambiaba: carga media, 16 horas.
  int carga = 1, horas = 2;
  if (const auto dicha = camposFichero::LeerPosicion(SinBlancos(e.cargaInterna), kCargas))
    carga = *dicha;
  const auto* hora = std::find(kHoras.begin(), kHoras.end(), EnteroInicial(e.horario));
  if (hora != kHoras.end()) horas = static_cast<int>(hora - kHoras.begin());
  return kPrimerPerfil + horas * static_cast<int>(kCargas.size()) + carga;
}

void DeducirUso(EstadoTexto& e) {
  constexpr std::string_view kOtro = "Otro", kVivienda = "ResidencialPrivado";
  D& d = e.r.generales;
  if (e.terciario) {
    d.PerfilUso = PerfilTerciario(e);
    InformeLectura::Anotar(e.informe.cambiados,
                           "Edificio terciario -> " + std::string(kNombrePerfilUso.at(
                                                          static_cast<std::size_t>(d.PerfilUso))));
  }
  if (d.Uso.empty()) d.Uso = d.EsResidencial() ? kVivienda : kOtro;
}

void PonerLugar(EstadoTexto& e, std::string_view version) {
  L& sitio = e.r.localizacion;
  if (!LugarPorIndices(version)) {
    if (!SinBlancos(e.ciudadXml).empty()) sitio.Municipio = SinBlancos(e.ciudadXml);
    if (!SinBlancos(e.provinciaXml).empty()) sitio.Provincia = SinBlancos(e.provinciaXml);
    return;
  }
  sitio.Provincia.clear();
  sitio.Municipio.clear();
  if (!e.conIndices) return;
  sitio.Provincia = ProvinciaDeIndice(sitio.indiceProvincia);
  sitio.Municipio = CiudadDeIndice(sitio.indiceProvincia, sitio.indiceCiudad);
  // De un municipio que no estaba en la lista puede haber nombre.
  if (sitio.Municipio == "Otra" && !SinBlancos(sitio.Localidad).empty())
    sitio.Municipio = SinBlancos(sitio.Localidad);
  InformeLectura::Anotar(e.informe.cambiados,
                         "Provincia " + std::to_string(sitio.indiceProvincia) + " y ciudad " +
                             std::to_string(sitio.indiceCiudad) + " de las listas -> " +
                             (sitio.Provincia.empty() ? std::string("no están en ellas")
                                                      : sitio.Provincia + ", " + sitio.Municipio));
}

// Lo que el formato no tiene y hoy hace falta.
void PonerLoQueNoTiene(EstadoTexto& e) {
  // Como el de un fichero que no dice su uso: los horarios llegan después.
  e.r.generales.Tipo = "Residencial";
  struct Supuesto {
    std::string D::*campo;
    std::string_view nombre, valor;
  };
  constexpr std::array kSupuestos = {
      Supuesto{&D::Tiposimulacion, "Objetivo", "CertificacionSolo"},
      Supuesto{&D::Equipos_Defecto, "Con equipos por defecto", "SI"},
      Supuesto{&D::Modo_Vision, "Modo de visión", "Completo"},
      Supuesto{&D::Alcance, "Alcance", "Completo"},
      Supuesto{&D::GradoProteccion, "Grado de protección", "Ninguna"},
      Supuesto{&D::Otra_legislacion_aplicable, "Otra legislación aplicable", "Ninguna"}};
  for (const Supuesto& s : kSupuestos) {
    std::string& campo = e.r.generales.*s.campo;
    if (!campo.empty()) continue;
    campo = s.valor;
    InformeLectura::Anotar(e.informe.porDefecto,
                           std::string(s.nombre) + ": " + std::string(s.valor));
  }
  InformeLectura::Anotar(e.informe.porDefecto,
                         "Instalaciones y litros al día de agua caliente: ninguno, los ficheros de "
                         "texto no los llevan");
}

}  // namespace

std::span<const FilaTexto> FilasGenerales() {
  return kGenerales;
}

std::span<const FilaTexto> FilasGeograficos() {
  return kGeograficos;
}

void AcabarGenerales(EstadoTexto& e, std::string_view version) {
  UnirPartes(e);
  DeducirUso(e);
  PonerLugar(e, version);
  PonerLoQueNoTiene(e);
}

}  // namespace novex
