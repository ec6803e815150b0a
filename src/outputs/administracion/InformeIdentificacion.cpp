#include "outputs/administracion/InformeIdentificacion.h"

#include <algorithm>

#include "base/Texto.h"
#include "demand/CargaInternaMedia.h"
#include "files/ComunidadAutonoma.h"
#include "outputs/administracion/EscrituraInforme.h"
#include "outputs/documentos/VariablesIdentidad.h"
#include "systems/ClasesSistema.h"

namespace novex {
namespace {

constexpr std::string_view kExistente = "Existente";
constexpr std::string_view kAlcanceParte = "Parte";
constexpr std::string_view kAbreBloque = "<![CDATA[";
constexpr std::string_view kCierraBloque = "]]>";

constexpr std::array<std::string_view, 3> kTiposVivienda = {
    "ViviendaUnifamiliar", "BloqueDeViviendaCompleto", "ViviendaIndividualEnBloque"};

// Orientaciones del informe en su orden; las que el programa no distingue no están.
struct Fachada {
  const char* etiqueta;
  Sector sector;
};
constexpr std::array<Fachada, kSectores> kFachadas = {
    {{"N", norte}, {"E", este}, {"SE", sur_este}, {"S", sur}, {"SO", sur_oeste}, {"O", oeste}}};

// El primero de los dos que diga algo.
const std::string& UnoDe(const std::string& primero, const std::string& segundo) {
  return SinBlancos(primero).empty() ? segundo : primero;
}

std::string Referencias(const Edificio& edificio) {
  std::vector<std::string> textos;
  for (const ReferenciaCatastral& r : edificio.GetDatosPantalla().referencias)
    textos.push_back(r.Parcela + r.Inmueble);
  return UnirLineas(textos, ", ");
}

// Parte de la superficie útil que sirven los sistemas de un servicio, %.
double PorcentajeServido(const Edificio& edificio, bool (*da)(TipoSistema),
                         float SistemaResidencial::*superficie) {
  const float util = edificio.GetRecinto(0).Suelo_habitable_m2;
  if (!(util > 0.0F)) return 0;
  float servida = 0;
  for (std::size_t i = 0; i < edificio.NumeroSistemas(); ++i) {
    const SistemaResidencial& s = edificio.GetSistema(i);
    if (da(TipoSistemaDe(s.Tipo_sistema))) servida += s.*superficie;
  }
  // Los sistemas de aire y los de zona reparten cada uno toda la superficie.
  return static_cast<double>(std::min(servida / util, 1.0F)) * 100.0;
}

bool HayFachada(const Edificio& edificio, Sector sector) {
  for (const PorSector& areas : edificio.GetRecinto(0).Muro_ext_m2)
    if (areas[sector] > 0.0F) return true;
  for (std::size_t i = 0; i < edificio.NumeroHuecos(); ++i)
    if (!edificio.GetHuecos(i).columnas[sector].recintos.empty()) return true;
  return false;
}

void AnadirImagen(XMLNode& nodo, const char* etiqueta,
                  const std::shared_ptr<const std::string>& imagen) {
  if (!imagen) return;
  const std::string_view contenido = ContenidoImagen(*imagen);
  if (!contenido.empty()) nodo.appendChild(etiqueta).appendClear(contenido);
}

}  // namespace

bool InformaVerificacion(const DatosGenerales& generales) {
  return generales.TipoCertificado != kExistente;
}

std::string_view AlcanceInforme(const DatosGenerales& generales) {
  if (!InformaVerificacion(generales)) return "CertificacionExistente";
  return ModoTrabajoDe(generales.TipoCertificado) == "Nuevo" ? "CertificacionVerificacionNuevo"
                                                             : "CertificacionVerificacionExistente";
}

std::string_view TipoDeEdificio(const DatosGenerales& generales) {
  if (generales.EsResidencial())
    return kTiposVivienda[static_cast<std::size_t>(std::max(generales.PerfilUso, 0))];
  return generales.Alcance == kAlcanceParte ? "LocalUsoTerciario" : "EdificioUsoTerciario";
}

std::string_view ContenidoImagen(std::string_view imagen) {
  imagen = SinBlancos(imagen);
  if (imagen.starts_with(kAbreBloque)) imagen.remove_prefix(kAbreBloque.size());
  return SinBlancos(imagen.substr(0, imagen.find(kCierraBloque)));
}

void AnadirCertificador(XMLNode& informe, const DatosGenerales& g) {
  XMLNode n = informe.appendChild("DatosDelCertificador");
  AnadirDato(n, "NombreyApellidos", g.Certificador_Nombre);
  AnadirDato(n, "NIF", UnoDe(g.Certificador_NIF, g.Certificador_CIF));
  AnadirDato(n, "RazonSocial", g.Certificador_Empresa);
  AnadirDato(n, "NIFEntidad", g.Certificador_CIF);
  AnadirDato(n, "Domicilio", g.Certificador_Direccion);
  AnadirDato(n, "Municipio", g.Certificador_Localidad);
  AnadirDato(n, "CodigoPostal", g.Certificador_CP);
  AnadirDato(n, "Provincia", g.Certificador_Provincia);
  AnadirDato(n, "ComunidadAutonoma", ComunidadAutonomaDe(g.Certificador_Provincia));
  AnadirDato(n, "Email", g.Certificador_email);
  AnadirDato(n, "Telefono", UnoDe(g.Certificador_Movil, g.Certificador_Telefono));
  AnadirDato(n, "Titulacion", g.Certificador_Profesion);
  AnadirDato(n, "Fecha", g.Fecha);
}

void AnadirIdentificacion(XMLNode& informe, const Edificio& edificio) {
  const DatosGenerales& g = edificio.GetDatosGenerales();
  const Localizacion& lugar = edificio.GetLocalizacion();
  XMLNode n = informe.appendChild("IdentificacionEdificio");
  AnadirDato(n, "NombreDelEdificio", g.Edificio_Titulo);
  AnadirDato(n, "Direccion", g.Direccion);
  AnadirDato(n, "Municipio", lugar.Municipio);
  AnadirDato(n, "CodigoPostal", g.CodigoPostal);
  AnadirDato(n, "Provincia", lugar.Provincia);
  AnadirDato(n, "ComunidadAutonoma", ComunidadAutonomaDe(lugar.Provincia));
  AnadirDato(n, "ZonaClimatica", lugar.ZonaClimatica);
  AnadirDato(n, "AnoConstruccion", g.AnoConstruccion);
  AnadirDato(n, "ReferenciaCatastral", Referencias(edificio));
  AnadirDato(n, "TipoDeEdificio", TipoDeEdificio(g));
  AnadirDato(n, "NormativaVigente", UnoDe(g.NormativaVigente, g.NormativaEdificacion));
  AnadirDato(n, "Procedimiento", kProcedimiento);
  AnadirDato(n, "AlcanceInformacionXML", AlcanceInforme(g));
}

void AnadirGeometria(XMLNode& informe, const CasoCalculado& caso,
                     const VerificacionHE& verificacion) {
  const Edificio& edificio = *caso.edificio;
  const DatosGenerales& g = edificio.GetDatosGenerales();
  const Recinto& recinto = edificio.GetRecinto(0);
  const Construccion& construccion = edificio.GetConstruccion();
  const float renovaciones = edificio.GetVentilacion().nrenovventilacion;
  XMLNode n = informe.appendChild("DatosGeneralesyGeometria");
  AnadirEntero(n, "NumeroDePlantasSobreRasante", construccion.NPlantasSobreRasante);
  AnadirEntero(n, "NumeroDePlantasBajoRasante", construccion.NPlantasBajoRasante);
  AnadirCifra(n, "SuperficieHabitable", recinto.Suelo_habitable_m2);
  AnadirCifra(n, "VolumenEspacioHabitable", recinto.Volumen_total_m3);
  AnadirCifra(n, "Compacidad", verificacion.K.envolvente.Compacidad());
  AnadirEntero(n, "PorcentajeSuperficieHabitableCalefactada",
               PorcentajeServido(edificio, DaCalefaccion, &SistemaResidencial::Sup_Calefaccion));
  AnadirEntero(
      n, "PorcentajeSuperficieHabitableRefrigerada",
      PorcentajeServido(edificio, DaRefrigeracion, &SistemaResidencial::Sup_Refrigeracion));
  XMLNode vidrio = n.appendChild("PorcentajeSuperficieAcristalada");
  for (const Fachada& f : kFachadas)
    if (HayFachada(edificio, f.sector))
      AnadirEntero(
          vidrio, f.etiqueta,
          100.0 * static_cast<double>(caso.resultado->resultados.proporcionHuecos[f.sector]));
  AnadirImagen(n, "Imagen", edificio.GetDatosPantalla().Imagen);
  AnadirImagen(n, "Plano", edificio.GetDatosPantalla().Plano);
  if (!g.EsResidencial()) AnadirCifra(n, "DensidadFuentesInternas", CargaInternaMedia(edificio));
  // Renovaciones por hora de proyecto en los dos: el aire que entra por fugas cambia cada hora.
  if (g.EsResidencial()) AnadirCifra(n, "VentilacionUsoResidencial", renovaciones);
  AnadirCifra(n, "VentilacionTotal", renovaciones);
  AnadirCifra(n, "DemandaDiariaACS", g.ConsumoAgua_litros_dia);
}

}  // namespace novex
