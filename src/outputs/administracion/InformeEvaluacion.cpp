#include "outputs/administracion/InformeEvaluacion.h"

#include "calculation/Entorno.h"
#include "files/ProyectoFichero.h"
#include "outputs/administracion/EscrituraInforme.h"
#include "outputs/administracion/InformeCalificacion.h"
#include "outputs/administracion/InformeEnergia.h"
#include "outputs/administracion/InformeEnvolvente.h"
#include "outputs/administracion/InformeIdentificacion.h"
#include "outputs/administracion/InformeInstalaciones.h"

namespace novex {
namespace {

constexpr std::string_view kDeclaracion = "xml version=\"1.0\" encoding=\"UTF-8\"";
constexpr std::string_view kRaiz = "DatosEnergeticosDelEdificio";
constexpr std::string_view kVersionEsquema = "2.0";

// El proyecto cierra el bloque de una imagen dos veces, y fuera de un bloque "]]>" no es XML.
void CerrarImagenes(const XMLNode& caso) {
  const XMLNode generales = caso.childNamed("Datos_Generales");
  for (const char* etiqueta : {"Imagen", "Plano"}) {
    XMLNode imagen = generales.childNamed(etiqueta);
    if (const auto texto = imagen.clearAt(0))
      imagen.updateClear(std::string(texto->substr(0, texto->find("]]>"))));
  }
}

void AnadirProyecto(XMLNode& informe, const DatosInforme& datos) {
  XMLNode casos = informe.appendChild("DatosPersonalizados");
  for (std::size_t i = 0; i < datos.proyecto.size(); ++i)
    EscribirCaso(
        casos, *datos.proyecto[i], i == 0,
        i < datos.derivados.casos.size() ? datos.derivados.casos[i] : DatosDerivados::Caso{});
  CerrarImagenes(casos.childAt(0));
}

}  // namespace

std::string InformeEvaluacion(const DatosInforme& datos) {
  const CasoCalculado& caso = datos.caso;
  const Edificio& edificio = *caso.edificio;
  const DatosGenerales& generales = edificio.GetDatosGenerales();
  if (!TieneLetrasGlobales(caso))
    throw ErrorCalculo("El edificio no se califica: el informe ha de llevar su letra");
  XMLNode documento = XMLNode::createTop(kDeclaracion);
  XMLNode informe = documento.appendChild(kRaiz);
  informe.setAttribute("version", kVersionEsquema);
  AnadirCertificador(informe, generales);
  AnadirIdentificacion(informe, edificio);
  AnadirGeometria(informe, caso, datos.verificacion);
  AnadirEnvolvente(informe, caso);
  AnadirInstalacionesTermicas(informe, caso);
  AnadirIluminacion(informe, edificio);
  AnadirFuncionamiento(informe, edificio);
  AnadirRenovables(informe, caso);
  AnadirDemanda(informe, caso);
  AnadirConsumo(informe, caso);
  AnadirEmisiones(informe, caso);
  AnadirCalificacion(informe, caso);
  AnadirMejoras(informe, edificio, datos.mejoras);
  AnadirVisitas(informe, generales);
  if (!datos.proyecto.empty()) AnadirProyecto(informe, datos);
  return SoloCaracteresXml(documento.toString());
}

}  // namespace novex
