#include "base/Texto.h"
#include "files/texto/TipologiasTexto.h"

namespace novex {
namespace {

using R = RegistrosCaso;
using D = DatosGenerales;
using V = Ventilacion;
using Z = Recinto;
constexpr auto g = &R::generales;
constexpr auto z = &R::recinto;
constexpr auto v = &R::ventilacion;

constexpr int kMaximoRecintos = 1000;
constexpr std::array<std::string_view, 2> kSiNo = {"Si", "No"};
constexpr std::array<std::string_view, 3> kCargas = {"Baja", "Media", "Alta"};

// El uso de un terciario es su carga interna; otro texto es el uso de hoy.
void LeerUsoRecinto(EstadoTexto& e, const ValorTexto& valor) {
  const std::string_view uso = SinBlancos(valor.texto);
  if (camposFichero::LeerPosicion(uso, kCargas))
    e.cargaInterna = uso;
  else
    e.r.generales.Uso = uso;
}

void LeerControl(EstadoTexto& e, const ValorTexto& valor) {
  e.horario = SinBlancos(valor.texto);
}

void LeerTotalRecintos(EstadoTexto& e, const ValorTexto& valor) {
  const int total = e.LeerEntero(valor, 0, kMaximoRecintos);
  e.recintos = static_cast<std::size_t>(std::max(total, 1));
  if (total > 1) e.Cambiar(valor, "una zona, con la suma de las áreas de todos los recintos");
}

// De los recintos que siguen al primero solo quedan sus áreas.
void LeerNombreRecinto(EstadoTexto& e, const ValorTexto& valor) {
  if (!e.EnPrimerRecinto().value_or(false)) return SinSitio(e, valor);
  if (!valor.texto.empty()) e.r.recinto.nombre = valor.texto;
}
void LeerCargaIluminacion(EstadoTexto& e, const ValorTexto& valor) {
  if (!e.EnPrimerRecinto().value_or(false)) return SinSitio(e, valor);
  e.r.generales.Iluminacion = camposFichero::LeerReal(valor.texto, valor.etiqueta, e.mensajes);
}

constexpr std::array kGlobales = {
    Fila(Real<z, &Z::Volumen_total_m3>("*[F] Volumen total m3.", 0)),
    // Son metros cuadrados, aunque la etiqueta diga otra cosa.
    Fila(Real<z, &Z::Suelo_habitable_m2>("*[F] Suelo habitable m3.", 0)),
    Accion("*[S] Uso.", LeerUsoRecinto), Accion("*[S] Control.", LeerControl),
    Fila(Real<g, &D::Ventilacion>("*[F] Caudal Aire Exterior m3/h.", 0)),
    Fila(Real<g, &D::VEII>("*[F] Eficiencia energetica iluminacion proyecto.", 0)),
    Fila(Real<g, &D::VEIIMax>("*[F] Eficiencia energetica iluminacion HE3.", 0)),
    filaTipologia::kTotal, filaTipologia::kNumero, filaTipologia::kViviendas,
    filaTipologia::kDobles, filaTipologia::kSimples, filaTipologia::kSalas, filaTipologia::kBanos,
    TextoDeLista<v, &V::Calcular_Renov_h_segun_HS3>("*[S] Calcular Renov/h según HS3: Si/No.",
                                                    kSiNo),
    Accion("*[F] Suelo acondicionado con equipos de calefacción m2.", SinSitio),
    Accion("*[F] Suelo acondicionado con equipos de refrigeración m2.", SinSitio),
    Accion("*[F] Suelo total acondicionado m2.", SinSitio),
    Accion("*[F] Volumen total acondicionado m3.", SinSitio),
    Fila(Real<v, &V::nrenovventilacion>("*[F] Numero renovaciones/hora.", 0)),
    Control("*[I] Numero total recintos.", LeerTotalRecintos),
    Control("*[I] Numero del recinto.", PasarARecinto),
    Accion("*[S] Nombre recinto.", LeerNombreRecinto),
    Accion("*[F] Carga iluminacion W/m2.", LeerCargaIluminacion)};

}  // namespace

std::span<const FilaTexto> FilasGlobales() {
  return kGlobales;
}

void AcabarTipologias(EstadoTexto& e) {
  for (std::size_t i = 0; i < kTipologias; ++i) {
    if (e.dobles[i] < 0 && e.simples[i] < 0) continue;
    const int dobles = std::max(e.dobles[i], 0), simples = std::max(e.simples[i], 0);
    e.r.ventilacion.tipologias[i].N_dormitorios_dobles = dobles + simples;
    if (simples > 0)
      InformeLectura::Anotar(e.informe.cambiados,
                             "Tipo de vivienda " + std::to_string(i + 1) + ": " +
                                 std::to_string(dobles) + " dormitorios dobles y " +
                                 std::to_string(simples) + " simples -> " +
                                 std::to_string(dobles + simples) + " dormitorios");
  }
}

}  // namespace novex
