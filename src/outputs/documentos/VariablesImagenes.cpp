#include "outputs/documentos/VariablesImagenes.h"

#include "base/Texto.h"
#include "outputs/ReglasResultados.h"

namespace novex {
namespace {

constexpr const char* kSinImagen = "sinimagen.bmp";

class Imagenes {
 public:
  Imagenes(const std::filesystem::path& carpeta, std::vector<VBLE>& variables)
      : carpeta_(carpeta), variables_(variables) {}
  void Poner(const char* nombre, const std::string& fichero) {
    variables_.push_back({nombre, DireccionFichero(carpeta_ / fichero)});
  }
  void Casilla(const char* nombre, bool marcada) {
    Poner(nombre, marcada ? "marcado.bmp" : "blanco.bmp");
  }
  void DelEdificio(const char* nombre, const std::filesystem::path& ruta) {
    if (ruta.empty())
      Poner(nombre, kSinImagen);
    else
      variables_.push_back({nombre, DireccionFichero(ruta)});
  }

 private:
  const std::filesystem::path& carpeta_;
  std::vector<VBLE>& variables_;
};

struct Intervencion {
  const char* nombre;
  std::string_view reforma;
};
constexpr std::array kReformas = {
    Intervencion{"REFORMA1.BMP", "Reforma >25% envolvente + Clima + ACS"},
    Intervencion{"REFORMA2.BMP", "Reforma >25% envolvente + Clima"},
    Intervencion{"REFORMA3.BMP", "Reforma >25% envolvente + ACS"},
    Intervencion{"REFORMA4.BMP", "Reforma >25% envolvente"},
    Intervencion{"REFORMA5.BMP", "Reforma <25% envolvente + Clima + ACS"},
    Intervencion{"REFORMA6.BMP", "Reforma <25% envolvente + Clima"},
    Intervencion{"REFORMA7.BMP", "Reforma <25% envolvente + ACS"},
    Intervencion{"REFORMA8.BMP", "Reforma <25% envolvente"}};

void CasillasIntervencion(std::string_view reforma, Imagenes& imagenes) {
  imagenes.Casilla("AMPLIACION.BMP", reforma == "Ampliación");
  imagenes.Casilla("CAMBIOUSO.BMP", reforma == "Cambio de uso");
  bool alguna = false;
  for (const Intervencion& i : kReformas) {
    const bool es = reforma == i.reforma;
    alguna = alguna || es;
    imagenes.Casilla(i.nombre, es);
  }
  imagenes.Casilla("REFORMA.BMP", alguna);
}

void CasillasEdificio(const DatosGenerales& g, Imagenes& imagenes) {
  imagenes.Casilla("LOCAL.BMP", false);
  imagenes.Casilla("COMPLETO.BMP", true);
  const bool nuevo = g.Modo_trabajo == "Nuevo";
  imagenes.Casilla("EXISTENTE.BMP", !nuevo);
  imagenes.Casilla("NUEVO.BMP", nuevo);
  imagenes.Casilla("UNIFAMILIAR.bmp", g.PerfilUso == 0);
  imagenes.Casilla("BLOQUE.bmp", g.PerfilUso != 0);
  imagenes.Casilla("BLOQUECOMPLETO.bmp", g.PerfilUso == 1);
  imagenes.Casilla("BLOQUEVIVIENDA.bmp", g.PerfilUso > 1);
}

}  // namespace

std::string DireccionFichero(const std::filesystem::path& ruta) {
  constexpr std::string_view kHex = "0123456789ABCDEF";
  std::string direccion = "file://";
  for (const char c : std::filesystem::absolute(ruta).generic_string()) {
    const auto byte = static_cast<unsigned char>(c);
    const bool seguro = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') ||
                        (byte >= '0' && byte <= '9') || byte == '/' || byte == '.' || byte == '-';
    if (seguro)
      direccion += c;
    else
      direccion.append({'%', kHex[byte >> 4U], kHex[byte & 15U]});
  }
  return direccion;
}

std::string FlechaDe(std::string_view letra) {
  const bool hay = letra.size() == 1 && letra[0] >= 'A' && letra[0] <= 'G';
  return hay ? "flecha" + std::string(letra) + ".bmp" : "flecha.bmp";
}

void VariablesImagenes(const CasoCalculado& caso, const ImagenesDocumento& imagenes,
                       std::vector<VBLE>& variables) {
  const DatosGenerales& g = caso.edificio->GetDatosGenerales();
  Imagenes i(imagenes.carpeta, variables);
  i.Poner("MARCADO.BMP", "marcado.bmp");
  i.Poner("BLANCO.BMP", "blanco.bmp");
  i.Poner("ESCALA.BMP", "escala.bmp");
  CasillasEdificio(g, i);
  // Una obra nueva guarda la última intervención elegida, que no es suya.
  CasillasIntervencion(g.Modo_trabajo == "Nuevo" ? "" : SinBlancosFinales(g.Reforma), i);
  const bool sinFrio = RefrigeracionFuera(*caso.edificio);
  const auto flecha = [&](const char* nombre, Indicador indicador) {
    const bool fuera = sinFrio && indicador == Indicador::DemandaRefrigeracion;
    i.Poner(nombre, FlechaDe(fuera ? std::string() : LetraMostrada(indicador, caso)));
  };
  flecha("IMG_PRIM_GL.bmp", Indicador::EPriNoRTotales);
  flecha("IMG_CO2.BMP", Indicador::EmisionesTotales);
  flecha("IMG_GLOBAL_CO2.bmp", Indicador::EmisionesTotales);
  flecha("IMG_CAL.BMP", Indicador::DemandaCalefaccion);
  flecha("IMG_DEM_GL_CAL.bmp", Indicador::DemandaCalefaccion);
  flecha("IMG_REF.BMP", Indicador::DemandaRefrigeracion);
  flecha("IMG_DEM_GL_REF.bmp", Indicador::DemandaRefrigeracion);
  i.DelEdificio("IMG_EDIFICIO.bmp", imagenes.edificio);
  i.DelEdificio("IMG_PLANO.bmp", imagenes.plano);
}

}  // namespace novex
