#include "outputs/documentos/VariablesMejora.h"

#include <algorithm>

#include "base/Texto.h"
#include "outputs/ReglasResultados.h"
#include "outputs/documentos/VariablesCalificacion.h"
#include "outputs/documentos/VariablesImagenes.h"
#include "rating/Escala.h"

namespace novex {
namespace {

using enum CifraMedida;

constexpr std::size_t kLineasNota = 11;

// Una fila de la hoja: la variable de su cifra, la de su letra y la de su diferencia.
struct FilaMejora {
  CifraMedida cifra;
  std::string nombre;
  std::optional<Indicador> indicador;  ///< sin él, la "letra" repite la cifra
  bool frio = false, luz = false;
};

const std::array<FilaMejora, 17>& Filas() {
  static const std::array<FilaMejora, 17> filas = {{
      {EnergiaFinalCalEsp, "PRICF", {}},
      {EnergiaFinalRefEsp, "PRIRF", {}, true},
      {EnergiaFinalACSEsp, "PRIACSF", {}},
      {EnergiaFinalIluminacion, "PRIILUF", {}, false, true},
      {EnergiaFinalTotalEsp, "PRITF", {}},
      {DemandaCale, "DEMC", Indicador::DemandaCalefaccion},
      {DemandaRef, "DEMR", Indicador::DemandaRefrigeracion, true},
      {EnergiaPrimariaCal, "PRIC", Indicador::EPriNoRCalefaccion},
      {EnergiaPrimariaRef, "PRIR", Indicador::EPriNoRRefrigeracion, true},
      {EnergiaPrimariaACS, "PRIACS", Indicador::EPriNoRACS},
      {EnergiaPrimariaIluminacion, "PRIILU", Indicador::EPriNoRIlu, false, true},
      {EnergiaPrimariaTotal, "PRIT", Indicador::EPriNoRTotales},
      {EmisionesCal, "CO2C", Indicador::EmisionesCalefaccion},
      {EmisionesRef, "CO2R", Indicador::EmisionesRefrigeracion, true},
      {EmisionesACS, "CO2ACS", Indicador::EmisionesACS},
      {EmisionesIluminacion, "CO2ILU", Indicador::EmisionesIlu, false, true},
      {EmisionesTotal, "CO2T", Indicador::EmisionesTotales},
  }};
  return filas;
}

// Nombre de la letra de una fila; el de la energía final lleva la "W" delante de la "F".
std::string NombreLetra(const FilaMejora& fila) {
  if (fila.indicador) return fila.nombre + "W";
  return fila.nombre.substr(0, fila.nombre.size() - 1) + "WF";
}

std::string TextoDiferencia(const ResultadoMedida& medida, CifraMedida cifra, float base) {
  std::string texto = CifraDocumento(ValorMejora(medida, cifra, ClaseValor::Diferencia, base));
  if (base > 0.0F)
    texto +=
        "<BR>(" + CifraDocumento(-ValorMejora(medida, cifra, ClaseValor::Relativo, base)) + "%)";
  return texto;
}

// Hoja de una medida.
class HojaMejora {
 public:
  HojaMejora(const CasoCalculado& caso, const ResultadoMedida& base, const ResultadoMedida& medida)
      : base_(base),
        medida_(medida),
        sinFrio_(RefrigeracionFuera(*caso.edificio)),
        residencial_(caso.edificio->GetDatosGenerales().EsResidencial()) {}

  void Cifras() {
    for (const FilaMejora& fila : Filas()) {
      if (fila.luz && residencial_) continue;
      const bool fuera = fila.frio && sinFrio_;
      const std::string cifra = fuera ? std::string(kSinLetra) : Cifra(fila.cifra);
      Poner(fila.nombre, cifra);
      Poner(NombreLetra(fila), fila.indicador ? Letra(*fila.indicador, fuera) : cifra);
      Poner("DIF" + fila.nombre, fuera ? std::string(kSinLetra)
                                       : TextoDiferencia(medida_, fila.cifra, base_[fila.cifra]));
    }
    Poner("CO2GL", Cifra(EmisionesTotal));
    Poner("DEMGLCAL", Cifra(DemandaCale));
    Poner("DEMGLREF", sinFrio_ ? std::string(kSinLetra) : Cifra(DemandaRef));
  }

  void Anotado(const EstudioModificaciones& estudio) {
    const auto& m = estudio.medidas;
    const auto anotada = std::find_if(
        m.begin(), m.end(), [&](const MedidaEstudio& x) { return x.codigo == medida_.codigo; });
    const MedidaEstudio nada;
    const MedidaEstudio& apunte = anotada == m.end() ? nada : *anotada;
    Poner("MEJORASCOSTE", Importe(apunte.precio) +
                              " euros. Se estima un periodo de amortización de " +
                              Importe(apunte.amortizacion) + " años   ");
    std::string nota;
    for (std::size_t i = 0; i < std::min(apunte.notas.size(), kLineasNota); ++i)
      nota.append(i == 0 ? "" : " ").append(TextoHtml(apunte.notas[i]));
    Poner("MEJORASDATOS", nota);
  }

  void Imagenes(const std::filesystem::path& carpeta) {
    const auto imagen = [&](const char* nombre, const std::string& fichero) {
      Poner(nombre, DireccionFichero(carpeta / fichero));
    };
    const auto flecha = [&](const char* nombre, Indicador indicador, bool fuera = false) {
      imagen(nombre, FlechaDe(Letra(indicador, fuera)));
    };
    imagen("ESCALA.BMP", "escala.bmp");
    flecha("IMG_PRIM_GL.bmp", Indicador::EPriNoRTotales);
    flecha("IMG_CO2.BMP", Indicador::EmisionesTotales);
    flecha("IMG_GLOBAL_CO2.bmp", Indicador::EmisionesTotales);
    flecha("IMG_CAL.BMP", Indicador::DemandaCalefaccion);
    flecha("IMG_DEM_GL_CAL.bmp", Indicador::DemandaCalefaccion);
    flecha("IMG_REF.BMP", Indicador::DemandaRefrigeracion, sinFrio_);
    flecha("IMG_DEM_GL_REF.bmp", Indicador::DemandaRefrigeracion, sinFrio_);
  }

  void Poner(std::string nombre, std::string valor) {
    mejora_.variables.push_back({std::move(nombre), std::move(valor)});
  }
  MEJORA& Mejora() { return mejora_; }

 private:
  std::string Cifra(CifraMedida cifra) const {
    return CifraDocumento(ValorMejora(medida_, cifra, ClaseValor::Absoluto, 0));
  }
  std::string Letra(Indicador indicador, bool fuera) const {
    if (fuera) return std::string(kSinLetra);
    return medida_.letras[static_cast<std::size_t>(indicador)];
  }
  // Lo que el usuario ha escrito, tal cual: es suyo y no se redondea.
  static std::string Importe(std::string_view texto) {
    const std::string_view escrito = SinBlancos(texto);
    return escrito.empty() ? CifraDocumento(0) : TextoHtml(escrito);
  }

  const ResultadoMedida& base_;
  const ResultadoMedida& medida_;
  bool sinFrio_, residencial_;
  MEJORA mejora_;
};

}  // namespace

float ValorMejora(const ResultadoMedida& medida, CifraMedida cifra, ClaseValor clase, float base) {
  const float valor = medida[cifra];
  switch (clase) {
    case ClaseValor::Relativo:
      return base != 0.0F ? (valor - base) * 100.0F / base : 0.0F;
    case ClaseValor::Diferencia:
      return base - valor;
    case ClaseValor::Absoluto:
      break;
  }
  return valor;
}

void FilasMejoras(const CasoCalculado& caso, const MejorasMedidas& mejoras,
                  const std::filesystem::path& carpetaImagenes,
                  NOVEX_TO_MODELOCERTIFICADO& modelo) {
  for (const ResultadoMedida& medida : mejoras.medidas) {
    const MedidaPredefinida* predefinida = MedidaDeCodigo(medida.codigo);
    const std::string texto =
        predefinida == nullptr ? std::string() : TextoHtml(predefinida->texto);
    HojaMejora hoja(caso, mejoras.base, medida);
    hoja.Poner("TITULO_DE_LA_MEJORA", "");
    hoja.Poner("DENOMINACION", texto);
    hoja.Poner("MEJORAS", texto);
    hoja.Cifras();
    hoja.Anotado(caso.edificio->GetEstudioModificaciones());
    VariablesEscalasMejora(caso, hoja.Mejora().variables);
    hoja.Imagenes(carpetaImagenes);
    modelo.mejoras.push_back(std::move(hoja.Mejora()));
  }
}

}  // namespace novex
