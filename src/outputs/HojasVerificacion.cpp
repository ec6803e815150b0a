#include "outputs/HojasVerificacion.h"

#include <algorithm>
#include <array>

#include "base/NumeroTexto.h"
#include "base/Texto.h"
#include "compliance/CoeficientesPaso.h"
#include "compliance/Requisitos.h"
#include "outputs/TablaVeredictos.h"

namespace novex {
namespace {

constexpr std::array<std::string_view, 9> kTitulos = {
    "Resumen", "HE0", "Klimite, qjulio/A, n50", "Valores Máximos", "Condensaciones", "HE3",
    "HE4",     "HE5", "Coeficientes de paso"};

MarcaHE Marca(bool cumple, bool aplica) {
  if (!cumple) return MarcaHE::NoCumple;
  return aplica ? MarcaHE::Cumple : MarcaHE::NoAplica;
}
MarcaHE MarcaDe(const Veredicto& v) {
  return Marca(v.pasa, v.aplica);
}
bool AlgunoAplica(const std::vector<Veredicto>& veredictos) {
  return std::any_of(veredictos.begin(), veredictos.end(),
                     [](const Veredicto& v) { return v.aplica; });
}
MarcaHE MarcaGlobal(const VerificacionHE& v) {
  return Marca(v.CumpleGlobal(),
               v.K.registro.aplica || v.q.registro.aplica || v.n50.registro.aplica);
}

// El resumen: lo que no se cumple y los veredictos de todas las secciones.
std::vector<BloqueHE> Resumen(const VerificacionHE& v) {
  BloqueHE bloque;
  bloque.marca = v.Cumple() ? MarcaHE::Cumple : MarcaHE::NoCumple;
  bloque.veredicto = v.Cumple() ? "Cumple todo lo que se le exige" : "No cumple";
  for (const Veredicto& r : v.veredictos)
    if (!r.pasa) bloque.textos.push_back(r.seccion + " · " + r.requisito + ": " + r.veredicto);
  bloque.tablas = TablasVeredictos(v.veredictos);
  return {bloque};
}

std::vector<BloqueHE> HojaHE0(const VerificacionHE& v) {
  const RequisitoHE0& he0 = v.he0;
  const bool aplica = AlgunoAplica(he0.veredictos);
  BloqueHE primaria;
  primaria.titulo = "Energía primaria";
  primaria.textos = {"Cep,tot: " + he0.veredictoTot, "Cep,nren: " + he0.veredictoNren};
  primaria.marca = Marca(he0.cumpleTot && he0.cumpleNren, aplica);
  primaria.veredicto = !aplica                              ? "No Aplicable"
                       : *primaria.marca == MarcaHE::Cumple ? "Cumple"
                                                            : "No Cumple";
  primaria.tablas = {he0.indicadores};
  primaria.graficos = {he0.grafico};
  BloqueHE demanda;
  demanda.titulo = "Demanda";
  demanda.textos = {he0.textos[0], he0.textos[1]};
  if (!v.K.notaDemanda.empty()) demanda.textos.push_back(v.K.notaDemanda);
  BloqueHE horas;
  horas.titulo = "Horas fuera de consigna";
  horas.tablas = {he0.horas};
  horas.veredicto = he0.veredictoHoras;
  horas.marca = Marca(he0.cumpleHoras, aplica);
  return {primaria, demanda, horas};
}

std::vector<BloqueHE> HojaGlobal(const VerificacionHE& v) {
  BloqueHE K;
  K.titulo = "Transmitancia global K";
  K.textos = v.K.textos;
  if (!v.K.comparacion.empty()) K.textos.push_back(v.K.comparacion);
  if (!v.K.notaDemanda.empty()) K.textos.push_back(v.K.notaDemanda);
  K.veredicto = v.K.veredicto;
  K.marca = MarcaDe(v.K.registro);
  K.tablas = {v.K.SGKlimite};
  K.graficos = {v.K.grafico};
  BloqueHE q;
  q.titulo = "Control solar qsol;jul";
  q.textos = {v.q.texto};
  q.veredicto = v.q.veredicto;
  q.marca = MarcaDe(v.q.registro);
  q.tablas = {v.q.SGqjulio};
  q.graficos = {v.q.grafico};
  BloqueHE n50;
  n50.titulo = "Relación del cambio de aire n50";
  n50.textos = v.n50.textos;
  n50.veredicto = v.n50.veredicto;
  n50.marca = MarcaDe(v.n50.registro);
  if (!v.n50.SGNV50limite.filas.empty()) n50.tablas = {v.n50.SGNV50limite};
  return {K, q, n50};
}

std::vector<BloqueHE> HojaMaximas(const VerificacionHE& v) {
  BloqueHE maximas;
  maximas.titulo = "Transmitancias y permeabilidad máximas";
  maximas.veredicto = v.maximas.veredicto;
  maximas.marca = MarcaHoja(HojaHE::Maximas, v);
  maximas.tablas = {v.maximas.SGValorMaximo};
  return {maximas};
}

Tabla TablaCondiciones(const CondicionesCondensacion& c) {
  Tabla tabla;
  tabla.titulo = "Condiciones de proyecto";
  tabla.cabeceras = {"T exterior ºC", "T interior ºC", "HR interior %",           "P exterior Pa",
                     "P interior Pa", "Pmin Pa",       "T superficial mínima ºC", "fRsi,min"};
  std::vector<Celda> fila;
  for (const double valor : {c.Te, c.Ti, c.HR, c.Pe, c.Pi, c.Pmin, c.theta, c.fRsiMin})
    fila.push_back(Celda::Numero(valor, 2));
  tabla.filas = {std::move(fila)};
  return tabla;
}

std::vector<BloqueHE> HojaCondensaciones(const VerificacionHE& v) {
  const VerificacionCondensacion& c = v.condensacion;
  BloqueHE cerramientos;
  cerramientos.titulo = "Cerramientos";
  cerramientos.veredicto = c.textoCerramientos;
  cerramientos.marca = Marca(c.cumpleCerramientos, !c.elementos.empty());
  cerramientos.tablas = {TablaCondiciones(c.condiciones), c.tablaCerramientos};
  cerramientos.tablas.back().titulo.clear();
  cerramientos.graficos = c.graficos;
  BloqueHE puentes;
  puentes.titulo = "Puentes térmicos";
  puentes.veredicto = c.textoPuentes;
  puentes.marca = Marca(c.cumplePuentes, true);
  puentes.tablas = {c.tablaPuentes};
  puentes.tablas.back().titulo.clear();
  return {cerramientos, puentes};
}

// La última línea de una sección es su veredicto, que se enseña aparte.
BloqueHE DeLineas(const std::vector<std::string>& lineas, const std::string& veredicto) {
  BloqueHE bloque;
  bloque.textos = lineas;
  bloque.veredicto = veredicto;
  if (!bloque.textos.empty() && bloque.textos.back() == veredicto) bloque.textos.pop_back();
  return bloque;
}

std::vector<BloqueHE> HojaHE3(const VerificacionHE& v) {
  if (!v.he3.aplica) {
    BloqueHE bloque = DeLineas(v.he3.lineas, "No Aplicable");
    bloque.titulo = "Iluminación";
    bloque.marca = MarcaHE::NoAplica;
    return {bloque};
  }
  BloqueHE bloque;
  bloque.titulo = "Iluminación";
  bloque.textos = v.he3.lineas;
  bloque.veredicto = v.he3.pasa ? "Cumple" : "No cumple";
  bloque.marca = MarcaHoja(HojaHE::HE3, v);
  bloque.tablas = TablasVeredictos(v.he3.veredictos);
  bloque.tablas.front().titulo.clear();
  return {bloque};
}

std::vector<BloqueHE> HojaHE4(const VerificacionHE& v) {
  const RequisitoHE4& he4 = v.he4;
  BloqueHE bloque;
  bloque.titulo = "Contribución renovable al agua caliente";
  bloque.veredicto = he4.LabelCUMPEHE4;
  bloque.marca = MarcaDe(he4.veredicto);
  if (!he4.veredicto.nota.empty()) bloque.textos.push_back(he4.veredicto.nota);
  Tabla campos;
  campos.titulo = "Agua caliente del edificio";
  for (const CampoHE4& campo : he4.campos)
    campos.filas.push_back({std::string(SinBlancosFinales(campo.rotulo)), campo.valor});
  campos.filas.push_back({std::string(kRotuloRenovableHE4), Celda::Numero(he4.f, 2)});
  bloque.tablas = {campos, he4.SGHE4Demanda, he4.SGRenovACS};
  return {bloque};
}

std::vector<BloqueHE> HojaHE5(const VerificacionHE& v) {
  BloqueHE bloque = DeLineas(v.he5.lineas, v.he5.veredicto.veredicto);
  bloque.titulo = "Potencia fotovoltaica";
  bloque.marca = MarcaDe(v.he5.veredicto);
  return {bloque};
}

}  // namespace

std::string_view TituloHojaHE(HojaHE hoja) {
  return kTitulos.at(static_cast<std::size_t>(hoja));
}

std::string_view TextoMarca(MarcaHE marca) {
  switch (marca) {
    case MarcaHE::Cumple:
      return "Cumple";
    case MarcaHE::NoCumple:
      return "No cumple";
    case MarcaHE::NoAplica:
      break;
  }
  return "No se exige";
}

MarcaHE MarcaHE1(const VerificacionHE& v) {
  const bool aplica = MarcaGlobal(v) != MarcaHE::NoAplica || AlgunoAplica(v.maximas.veredictos) ||
                      AlgunoAplica(v.condensacion.veredictos);
  return Marca(v.CumpleHE1(), aplica);
}

std::optional<MarcaHE> MarcaHoja(HojaHE hoja, const VerificacionHE& v) {
  switch (hoja) {
    case HojaHE::Resumen:
      return Marca(v.Cumple(), true);
    case HojaHE::HE0:
      return Marca(v.he0.Cumple(), AlgunoAplica(v.he0.veredictos));
    case HojaHE::Global:
      return MarcaGlobal(v);
    case HojaHE::Maximas:
      return Marca(v.maximas.cumple, AlgunoAplica(v.maximas.veredictos));
    case HojaHE::Condensaciones:
      return Marca(v.CumpleCondensaciones(), AlgunoAplica(v.condensacion.veredictos));
    case HojaHE::HE3:
      return Marca(v.he3.pasa, v.he3.aplica);
    case HojaHE::HE4:
      return Marca(v.he4.pasa, v.he4.aplica);
    case HojaHE::HE5:
      return MarcaDe(v.he5.veredicto);
    case HojaHE::Coeficientes:
      break;
  }
  return std::nullopt;
}

std::vector<BloqueHE> BloquesHojaHE(HojaHE hoja, const VerificacionHE& v, const calculo& caso) {
  switch (hoja) {
    case HojaHE::Resumen:
      return Resumen(v);
    case HojaHE::HE0:
      return HojaHE0(v);
    case HojaHE::Global:
      return HojaGlobal(v);
    case HojaHE::Maximas:
      return HojaMaximas(v);
    case HojaHE::Condensaciones:
      return HojaCondensaciones(v);
    case HojaHE::HE3:
      return HojaHE3(v);
    case HojaHE::HE4:
      return HojaHE4(v);
    case HojaHE::HE5:
      return HojaHE5(v);
    case HojaHE::Coeficientes:
      break;
  }
  BloqueHE coeficientes;
  coeficientes.tablas = {TablaCoeficientesPaso(caso.resultados.factores)};
  return {coeficientes};
}

std::vector<std::string> AlcanceVerificacion(const DatosGenerales& generales) {
  std::vector<std::string> textos;
  if (generales.Tiposimulacion == "CertificacionSolo")
    textos.emplace_back(
        "El objetivo del proyecto es solo la certificación: lo que sigue es informativo y no se "
        "entrega.");
  else if (generales.Tiposimulacion == "Simulacion")
    textos.emplace_back(
        "El objetivo del proyecto es la simulación libre: lo que sigue se obtiene con su uso y sus "
        "consignas y no justifica el cumplimiento.");
  if (generales.Modo_trabajo == "Nuevo") {
    textos.emplace_back("Edificio nuevo: se exigen todas las secciones.");
    return textos;
  }
  const Aplicacion he0 = AplicaRequisito(generales, Requisito::HE0);
  if (he0 == Aplicacion::Ninguna) {
    textos.push_back("Edificio existente. " + NotaAplicacion(generales, he0) + ".");
    return textos;
  }
  const auto si = [&](Requisito requisito) {
    return AplicaRequisito(generales, requisito) == Aplicacion::Si;
  };
  std::string exigido;
  if (he0 == Aplicacion::Si) exigido += "HE0, ";
  if (si(Requisito::HE1Kq)) exigido += "K, control solar, ";
  if (si(Requisito::HE4)) exigido += "HE4, ";
  if (!exigido.empty()) exigido = exigido.substr(0, exigido.size() - 2) + " y ";
  exigido += si(Requisito::HE1Klim) ? "las transmitancias máximas de todos los elementos"
                                    : "las transmitancias máximas de lo que se interviene";
  textos.push_back("Edificio existente, \"" + std::string(SinBlancosFinales(generales.Reforma)) +
                   "\": se exigen " + exigido + ".");
  return textos;
}

}  // namespace novex
