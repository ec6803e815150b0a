#include "entry/CosteMejora.h"

#include <algorithm>

#include "base/NumeroTexto.h"
#include "entry/CambiarGenerales.h"
#include "files/CamposFichero.h"

namespace novex {
namespace {

constexpr int kSinElegir = -1;

template <std::size_t N>
std::string_view TextoDe(const std::array<std::string_view, N>& lista, int posicion) {
  const auto i = static_cast<std::size_t>(posicion);
  return posicion >= 0 && i < N ? lista[i] : std::string_view{};
}

template <std::size_t N>
int PosicionEn(const std::array<std::string_view, N>&, int posicion) {
  return posicion >= 0 && posicion < static_cast<int>(N) ? posicion : kSinElegir;
}

auto BuscarMedida(auto& medidas, int codigo) {
  return std::lower_bound(medidas.begin(), medidas.end(), codigo,
                          [](const MedidaEstudio& m, int c) { return m.codigo < c; });
}

bool TieneContenido(const MedidaEstudio& m) {
  return m.marca || !m.precio.empty() || !m.amortizacion.empty() || !m.notas.empty();
}

float Numero(const std::string& texto) {
  double valor = 0;
  return LeerReal(texto, valor) ? static_cast<float>(valor) : 0.0F;
}

const MedidaEstudio* Medida(const EstudioModificaciones& estudio, int codigo) {
  const auto it = std::find_if(estudio.medidas.begin(), estudio.medidas.end(),
                               [=](const MedidaEstudio& m) { return m.codigo == codigo; });
  return it == estudio.medidas.end() ? nullptr : &*it;
}

void GuardarCifras(EstudioModificaciones& estudio, const CifrasTecleadas& cifras,
                   Mensajes& mensajes) {
  auto it = BuscarMedida(estudio.medidas, cifras.codigo);
  if (it == estudio.medidas.end() || it->codigo != cifras.codigo) {
    if (!cifras.marcada) return;
    it = estudio.medidas.insert(it, MedidaEstudio{});
    it->codigo = cifras.codigo;
  }
  it->marca = cifras.marcada;
  const auto comprobar = [&](std::string_view texto, std::string_view que) {
    if (!cifras.marcada) return std::string();
    return General(camposFichero::LeerReal(texto, que, mensajes));
  };
  it->precio = comprobar(cifras.precio, "Coste");
  it->amortizacion = comprobar(cifras.amortizacion, "Amortización");
  if (!TieneContenido(*it)) estudio.medidas.erase(it);
}

struct CifrasUna {
  int codigo;
  bool marcada;
  std::string precio, amortizacion;
};

void GuardarUna(Edificio& edificio, const CifrasUna& una, Mensajes& mensajes) {
  EstudioModificaciones estudio = edificio.GetEstudioModificaciones();
  const CifrasTecleadas cifras{una.codigo, una.marcada, una.precio, una.amortizacion};
  GuardarCifrasEstudio(estudio, {&cifras, 1}, mensajes);
  edificio.SetEstudioModificaciones(std::move(estudio));
}

}  // namespace

std::string_view TextoCosteEstimado(const DatosGenerales& generales) {
  return TextoDe(kCostesMejora, generales.Coste);
}

std::string_view TextoPlazoRecuperacion(const DatosGenerales& generales) {
  return TextoDe(kPlazosFichero, generales.PlazoAmortizacion);
}

void PonerCosteMejora(Edificio& edificio, int posicion) {
  CambiarGenerales(edificio,
                   [&](DatosGenerales& g) { g.Coste = PosicionEn(kCostesMejora, posicion); });
}

void PonerPlazoMejora(Edificio& edificio, int posicion) {
  CambiarGenerales(edificio, [&](DatosGenerales& g) {
    g.PlazoAmortizacion = PosicionEn(kPlazosMejora, posicion);
  });
}

void PonerCondicionMejora(Edificio& edificio, std::size_t condicion, bool mejora) {
  const auto campo = kCondicionesMejora.at(condicion).campo;
  CambiarGenerales(edificio, [&](DatosGenerales& g) { g.*campo = mejora; });
}

std::string_view NombreMejora(const DatosGenerales& generales) {
  return generales.MedidaMejora.empty() ? std::string_view("Mejora") : generales.MedidaMejora;
}

void PonerNombreMejora(Edificio& edificio, std::string_view nombre) {
  CambiarGenerales(edificio, [&](DatosGenerales& g) { g.MedidaMejora = nombre; });
}

void GuardarCifrasEstudio(EstudioModificaciones& estudio, std::span<const CifrasTecleadas> cifras,
                          Mensajes& mensajes) {
  // Un fichero puede traer las medidas en otro orden.
  std::stable_sort(
      estudio.medidas.begin(), estudio.medidas.end(),
      [](const MedidaEstudio& a, const MedidaEstudio& b) { return a.codigo < b.codigo; });
  for (const CifrasTecleadas& c : cifras) GuardarCifras(estudio, c, mensajes);
}

bool MedidaMarcada(const EstudioModificaciones& estudio, int codigo) {
  const MedidaEstudio* m = Medida(estudio, codigo);
  return m != nullptr && m->marca;
}

void MarcarMedida(Edificio& edificio, int codigo, bool marcada) {
  const auto& estudio = edificio.GetEstudioModificaciones();
  RegistroMensajes sinAvisos;  // lo guardado ya está comprobado
  GuardarUna(edificio,
             {codigo, marcada, TextoCifraMedida(estudio, codigo, kPrecioMedida),
              TextoCifraMedida(estudio, codigo, kAmortizacionMedida)},
             sinAvisos);
}

std::string TextoCifraMedida(const EstudioModificaciones& estudio, int codigo,
                             std::string MedidaEstudio::*cifra) {
  const MedidaEstudio* m = Medida(estudio, codigo);
  return m == nullptr || (m->*cifra).empty() ? "0" : m->*cifra;
}

void PonerCifraMedida(Edificio& edificio, int codigo, std::string MedidaEstudio::*cifra,
                      std::string_view texto, Mensajes& mensajes) {
  const auto& estudio = edificio.GetEstudioModificaciones();
  if (!MedidaMarcada(estudio, codigo)) return;
  std::string precio = TextoCifraMedida(estudio, codigo, kPrecioMedida);
  std::string amortizacion = TextoCifraMedida(estudio, codigo, kAmortizacionMedida);
  (cifra == kPrecioMedida ? precio : amortizacion) = texto;
  GuardarUna(edificio, {codigo, true, precio, amortizacion}, mensajes);
}

CifrasMedida CifrasDeMedida(const EstudioModificaciones& estudio, int codigo) {
  const MedidaEstudio* m = Medida(estudio, codigo);
  if (m == nullptr) return {};
  return {Numero(m->precio), Numero(m->amortizacion)};
}

}  // namespace novex
