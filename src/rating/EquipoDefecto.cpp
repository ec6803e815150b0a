#include "rating/EquipoDefecto.h"

#include "base/ErrorFichero.h"
#include "model/CatalogoCampos.h"

namespace novex {
namespace {

struct AtributosDefecto {
  const char* rendimiento;
  const char* combustible;
};

// Por servicio, en el orden ACS, calefacción y refrigeración.
constexpr std::array<AtributosDefecto, kServiciosDemanda> kResidencial = {
    {{"RENDACSR", "COMBACSR"}, {"RENDCALER", "COMBCALER"}, {"RENDREFRIR", "COMBREFRIR"}}};
constexpr std::array<AtributosDefecto, kServiciosDemanda> kTerciario = {
    {{"RENDACST", "COMBACST"}, {"RENDCALET", "COMBCALET"}, {"RENDREFRIT", "COMBREFRIT"}}};

/// Del rendimiento nominal de refrigeración al medio de la temporada.
constexpr float kPasoRefrigeracion = 0.7F;

float LeerRendimiento(const XMLNode& nodo, const char* atributo, const std::string& ruta,
                      Mensajes& mensajes) {
  const auto texto = nodo.attributeValue(atributo);
  const float valor = texto ? ValorSinComprobar(*texto, mensajes) : 0.0F;
  if (!(valor > 0.0F))
    throw ErrorFichero(ruta, 0, 0, 0,
                       "El fichero \"" + ruta + "\" no sirve: el rendimiento \"" + atributo +
                           "\" del equipo por defecto falta o no es mayor que 0");
  return valor;
}

}  // namespace

EquipoDefecto LeerDefecto(const XMLNode& raiz, const std::string& ruta, bool residencial,
                          Mensajes& mensajes) {
  const XMLNode nodo = raiz.childNamed("DEFECTO");
  const auto& atributos = residencial ? kResidencial : kTerciario;
  EquipoDefecto equipo;
  for (std::size_t s = 0; s < kServiciosDemanda; ++s) {
    equipo.rendimiento[s] = LeerRendimiento(nodo, atributos[s].rendimiento, ruta, mensajes);
    if (const auto texto = nodo.attributeValue(atributos[s].combustible))
      equipo.combustible[s] = *texto;
  }
  equipo.rendimiento[kRefrigeracion] *= kPasoRefrigeracion;
  return equipo;
}

ModoDefecto ModoDefectoDe(std::string_view equiposDefecto) {
  if (equiposDefecto == "NO") return ModoDefecto::No;
  return equiposDefecto == "SI" ? ModoDefecto::Si : ModoDefecto::SinDecir;
}

VectorEnergetico VectorDefecto(std::size_t servicio, bool residencial) {
  if (servicio == kRefrigeracion) return VectorEnergetico::Electricidad;
  if (residencial) return VectorEnergetico::GasNatural;
  return servicio == kACS ? VectorEnergetico::Electricidad : VectorEnergetico::Gasoleo_C;
}

void CargarDefectoHora(int h, const std::array<float, kServiciosDemanda>& noDado, ModoDefecto modo,
                       calculo& caso) {
  const int mes = HoraDelMes(h);
  const auto& rendimiento = caso.resultados.defecto.rendimiento;
  const auto tomar = [&](Servicio s) {
    SumarMes(caso.meses.defecto[s], mes, noDado[s] / rendimiento[s]);
  };
  const auto guardar = [&](Servicio s) { caso.zona.defecto[s][h] = noDado[s] * 1000.0F; };

  guardar(kACS);
  if (modo != ModoDefecto::No) tomar(kACS);
  if (modo != ModoDefecto::Si) return;
  for (const Servicio s : {kCalefaccion, kRefrigeracion}) {
    tomar(s);
    guardar(s);
  }
}

float CargarIluminacion(const Edificio& edificio, calculo& caso) {
  TablaMensual& tabla = caso.meses.iluminacion;
  tabla = {};
  if (edificio.GetDatosGenerales().EsResidencial()) return 0.0F;
  const float area = edificio.GetRecinto(0).Suelo_habitable_m2;
  for (int h = 1; h <= kHorasAno; ++h)
    SumarMes(tabla, HoraDelMes(h), area * caso.carga.QILUhT[h] * 0.001F);
  SumarAno(tabla);
  return area > 0.0F ? tabla[0] / area : 0.0F;
}

}  // namespace novex
