#include "outputs/documentos/VariablesIdentidad.h"

#include <algorithm>

#include "base/NumeroTexto.h"
#include "demand/CargaInternaMedia.h"
#include "files/ComunidadAutonoma.h"
#include "model/Catastro.h"
#include "outputs/documentos/VariablesCalificacion.h"

namespace novex {
namespace {

constexpr std::size_t kVisitas = 3;
constexpr std::size_t kLineasVisita = 10;
constexpr int kCifrasSuperficie = 5;
constexpr std::size_t kMemoPrimeraVisita = 1;
constexpr const char* kHorasResidencial = "8760";
constexpr const char* kCargaResidencial = "4.812";  // W/m2

// Con cinco cifras significativas como mucho y sin ceros al final: "130", "98.45", "123460".
std::string CincoCifras(float valor) {
  std::string texto = FijoCifras(static_cast<double>(valor), kCifrasSuperficie, kCifrasSuperficie);
  texto.erase(texto.find_last_not_of('0') + 1);
  if (texto.ends_with('.')) texto.pop_back();
  return texto;
}

// La lista del programa lleva la norma como una clave: "NBE_CT_79".
std::string NormaEdificacion(std::string clave) {
  std::replace(clave.begin(), clave.end(), '_', ' ');
  return clave;
}

}  // namespace

std::string ReferenciasDe(const Edificio& edificio) {
  std::string nuevas = TextoReferencias(edificio.GetDatosPantalla().referencias);
  return nuevas.empty() ? edificio.GetDatosGenerales().ReferenciaCatastral : nuevas;
}

void VariablesIdentidad(const Edificio& edificio, std::string_view tipoCertificado,
                        std::vector<VBLE>& variables) {
  const DatosGenerales& g = edificio.GetDatosGenerales();
  const Localizacion& lugar = edificio.GetLocalizacion();
  const auto poner = [&](const char* nombre, std::string_view texto) {
    variables.push_back({nombre, TextoHtml(texto)});
  };
  poner("NOMBRE", g.Edificio_Titulo);
  poner("DIRECCION", g.Direccion);
  poner("MUNICIPIO", lugar.Municipio);
  poner("CP", g.CodigoPostal);
  poner("PROVINCIA", lugar.Provincia);
  poner("CA", ComunidadAutonomaDe(lugar.Provincia));
  // En este orden: la marca de la segunda está dentro de la de la primera.
  poner("ZC_", lugar.ZonaClimatica);
  poner("ZC", lugar.ZonaClimatica);
  poner("ANOCONSTRUCCION", g.AnoConstruccion);
  // Los dos siguientes están en un solo campo en los ficheros antiguos.
  poner("NORM",
        g.NormativaVigente.empty() ? NormaEdificacion(g.NormativaEdificacion) : g.NormativaVigente);
  poner("REFCAT", ReferenciasDe(edificio));
  poner("FECHA", g.Fecha);
  poner("NOMBRECERT", g.Certificador_Nombre);
  poner("NIF", g.Certificador_NIF);
  poner("RAZON", g.Certificador_Empresa);
  poner("CIF", g.Certificador_CIF);
  poner("DOMICILIO", g.Certificador_Direccion);
  poner("MUNI", g.Certificador_Localidad);
  poner("CPCERT", g.Certificador_CP);
  poner("PROV", g.Certificador_Provincia);
  poner("CACERT", ComunidadAutonomaDe(g.Certificador_Provincia));
  poner("MAIL", g.Certificador_email);
  poner("TITULO", g.Certificador_Profesion);
  poner("TELEFONO", g.Certificador_Movil.empty() ? g.Certificador_Telefono : g.Certificador_Movil);
  poner("PROC", kProcedimiento);
  poner("TIPOCERTI", tipoCertificado);
}

void VariablesUso(const CasoCalculado& caso, double compacidad, std::vector<VBLE>& variables) {
  const Edificio& edificio = *caso.edificio;
  const DatosGenerales& g = edificio.GetDatosGenerales();
  const Recinto& recinto = edificio.GetRecinto(0);
  const float volumen = recinto.Volumen_total_m3;
  const auto poner = [&](const char* nombre, std::string valor) {
    variables.push_back({nombre, std::move(valor)});
  };
  for (const char* nombre : {"SUP", "AUTIL"})
    poner(nombre, CincoCifras(recinto.Suelo_habitable_m2));
  for (const char* nombre : {"VOL", "VOLINF"}) poner(nombre, CifraDocumento(volumen));
  poner("VA", CifraDocumento(static_cast<float>(compacidad)));
  poner("CAUDALVENT", CifraDocumento(volumen * edificio.GetVentilacion().nrenovventilacion));
  poner("USO_CALIF", "Residencial");
  const bool residencial = g.EsResidencial();
  const std::string carga =
      residencial ? kCargaResidencial : CifraDocumento(CargaInternaMedia(edificio));
  poner("TIEMPOOCUPACION", residencial ? kHorasResidencial
                                       : CifraDocumento(caso.resultado->resultados.horasOcupacion));
  poner("INTENSIDADCARGAS", carga);
  poner("CFI", carga);
  poner("DEMACS", CifraDocumento(g.ConsumoAgua_litros_dia));
}

void VariablesVisitas(const DatosGenerales& generales, std::vector<VBLE>& variables) {
  for (std::size_t v = 0; v < kVisitas; ++v) {
    const std::string numero = std::to_string(v + 1);
    variables.push_back({"FECHAVISITA" + numero,
                         "Visita" + numero + ". Fecha: " + TextoHtml(generales.FechaVisita[v])});
    const std::vector<std::string>& lineas = generales.Memo[kMemoPrimeraVisita + v];
    for (std::size_t i = 0; i < kLineasVisita; ++i)
      variables.push_back({"PRUEBA" + std::to_string(v * kLineasVisita + i),
                           i < lineas.size() ? TextoHtml(lineas[i]) : std::string()});
  }
}

}  // namespace novex
