#include "shell/EmitirDocumento.h"

#include <optional>

#include "base/CerrojoFichero.h"
#include "calculation/ComprobacionesPrevias.h"
#include "calculation/EjecutarCalculo.h"
#include "files/ImagenesProyecto.h"
#include "outputs/documentos/ConstruirModelo.h"
#include "outputs/documentos/ConversorPDF.h"
#include "outputs/documentos/EscribirDocumento.h"
#include "outputs/documentos/VariablesIdentidad.h"
#include "shell/MejorasMarcadas.h"

namespace novex {
namespace {

bool PasaComprobaciones(const Edificio& edificio, Mensajes& mensajes) {
  const std::vector<Mensaje> avisos = AvisosPrevios(edificio);
  for (const Mensaje& aviso : avisos) mensajes.Avisar(aviso.titulo, aviso.texto);
  return avisos.empty();
}

// Hasta dónde llega cada paso, en el avance del documento.
constexpr int kHastaCalculo = 40, kHastaMejoras = 60, kHastaHtml = 70, kHecho = 100;

// El avance de un paso dentro del entero.
class TramoProgreso : public Progreso {
 public:
  TramoProgreso(Progreso& entero, int desde, int hasta)
      : entero_(entero), desde_(desde), hasta_(hasta) {}
  void Avanzar(int porcentaje) override {
    entero_.Avanzar(desde_ + (hasta_ - desde_) * porcentaje / 100);
  }

 private:
  Progreso& entero_;
  int desde_, hasta_;
};

bool Calculado(GestorEdifActivo& gestor, std::string_view nombreCaso, Entorno& entorno) {
  const Edificio& edificio = *gestor.Caso(nombreCaso);
  const bool hecho = edificio.GetCalculo() && edificio.GetCalculo()->Calculado();
  if (!hecho && !CalcularCaso(gestor, nombreCaso, entorno)) return false;
  return !edificio.GetCalculo()->resultados.depositoNulo;
}

bool HayImagen(const std::shared_ptr<const std::string>& imagen) {
  return imagen && !imagen->empty();
}

// Deja las imágenes del caso donde las buscan los documentos.
ImagenesDocumento PonerImagenes(const Edificio& edificio, const EspacioTrabajo& espacio,
                                Mensajes& mensajes) {
  ImagenesDocumento imagenes;
  imagenes.carpeta = espacio.Imagenes();
  const auto poner = [&](LugarImagen lugar, const std::shared_ptr<const std::string>& texto,
                         std::filesystem::path& destino) {
    if (!HayImagen(texto)) return;
    const auto imagen = DecodificarImagen(*texto, mensajes);
    if (imagen && VolcarImagen(espacio, lugar, *imagen, mensajes))
      destino = RutaImagen(espacio, lugar);
  };
  const DatosPantalla& pantalla = edificio.GetDatosPantalla();
  poner(LugarImagen::Edificio, pantalla.Imagen, imagenes.edificio);
  poner(LugarImagen::Plano, pantalla.Plano, imagenes.plano);
  return imagenes;
}

bool EscribirPdf(const Edificio& edificio, const EspacioTrabajo& espacio, DocumentoEmitido& hecho,
                 Mensajes& mensajes) {
  std::filesystem::path pdf = hecho.html;
  pdf.replace_extension(".pdf");
  const PieDocumento pie = {edificio.GetDatosGenerales().Fecha, ReferenciasDe(edificio)};
  const ResultadoPDF resultado = ElegirConversorPDF(espacio)->Convertir(hecho.html, pdf, pie);
  if (!resultado.hecho) {
    mensajes.Avisar("AVISO", resultado.mensaje);
    return false;
  }
  hecho.pdf = std::move(pdf);
  return true;
}

}  // namespace

DocumentoEmitido EmitirDocumento(GestorEdifActivo& gestor, std::string_view nombreCaso,
                                 const PedidoDocumento& pedido, Entorno& entorno) {
  const Edificio& edificio = *gestor.Caso(nombreCaso);
  const EspacioTrabajo& espacio = entorno.ficheros.Espacio();
  if (!PasaComprobaciones(edificio, entorno.mensajes)) return {Emision::Rechazada, {}, {}};
  TramoProgreso alCalcular(entorno.progreso, 0, kHastaCalculo);
  Entorno calculando{entorno.ficheros, entorno.mensajes, alCalcular, entorno.ficherosDeCaso};
  if (!Calculado(gestor, nombreCaso, calculando)) return {Emision::SinCalculo, {}, {}};
  entorno.progreso.Avanzar(kHastaCalculo);
  TramoProgreso alMedir(entorno.progreso, kHastaCalculo, kHastaMejoras);
  Entorno midiendo{entorno.ficheros, entorno.mensajes, alMedir, entorno.ficherosDeCaso};
  const bool certificado = pedido.tipo == TipoDocumento::Certi;
  const auto mejoras = certificado ? MedirMarcadas(gestor, nombreCaso, pedido.hilos, midiendo)
                                   : std::optional(MejorasMedidas());
  if (!mejoras) return {Emision::SinCalculo, {}, {}};
  entorno.progreso.Avanzar(kHastaMejoras);

  const CasoCalculado caso = {std::string(nombreCaso), &edificio, edificio.GetCalculo().get(), {}};
  DatosDocumento datos;
  datos.tipo = pedido.tipo;
  datos.clase = pedido.clase.empty() ? ClaseDocumento(edificio.GetDatosGenerales(), pedido.tipo)
                                     : pedido.clase;
  datos.hojaEstilo = LeerHojaEstilo(espacio.Datos());

  // Las imágenes del edificio tienen un nombre fijo en la carpeta del programa: quien las use a la
  // vez pondría las suyas en este documento.
  std::optional<CerrojoFichero> turno;
  const DatosPantalla& pantalla = edificio.GetDatosPantalla();
  if (HayImagen(pantalla.Imagen) || HayImagen(pantalla.Plano))
    turno.emplace(espacio.Imagenes() / "imagenes.lock");
  datos.imagenes = PonerImagenes(edificio, espacio, entorno.mensajes);

  const VerificacionHE verificacion =
      VerificarHE(edificio, *caso.resultado, LeerDocumentosHE(espacio.Datos()));
  entorno.progreso.Avanzar(kHastaHtml);
  DocumentoEmitido hecho;
  const bool residencial = edificio.GetDatosGenerales().EsResidencial();
  const std::filesystem::path html = NombreDocumento(pedido.proyecto, pedido.tipo, pedido.carpeta);
  if (!EscribirDocumento(PlantillasDe(espacio.Datos(), pedido.tipo, residencial), html,
                         ConstruirModelo(caso, verificacion, *mejoras, datos), entorno.mensajes))
    return {Emision::SinHtml, {}, {}};
  hecho.html = html;
  if (pedido.pdf && !EscribirPdf(edificio, espacio, hecho, entorno.mensajes))
    hecho.estado = Emision::SinPdf;
  entorno.progreso.Avanzar(kHecho);
  return hecho;
}

}  // namespace novex
