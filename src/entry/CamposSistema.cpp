#include "entry/CamposSistema.h"

#include <algorithm>

#include "systems/ArregloACS.h"
#include "systems/ClasesSistema.h"

namespace novex {
namespace {

using C = ClaseGenerador;
using G = GrupoCampos;
using L = LadoAgua;
using T = TipoSistema;
using Texto = std::string_view;

constexpr int kEdificiosEnBloque = 1;  // `PerfilUso`

constexpr Texto kTipologias[] = {kCentralizada, kIndividual};
constexpr Texto kRotulosTipologias[] = {kTipologiasInstalacion[0].rotulo,
                                        kTipologiasInstalacion[1].rotulo};
constexpr Texto kCeroUno[] = {"0", "1"};
constexpr Texto kIndicesVivienda[] = {"0", "1", "2", "3", "4", "5"};
constexpr Texto kTiposVivienda[] = {"A", "B", "C", "D", "E", "F"};

// Los campos de cada circuito.
struct CamposBomba {
  Texto circuito, caudal, salto, altura, rendimiento, control;
};
constexpr CamposBomba kCamposBomba[] = {
    {"SBZ", "CaudalSBZ", "DTSBZ", "PSBZ", "RendSBZ", "controlSBZ"},
    {"GEN1", "CaudalGEN1", "DTGEN1", "PGEN1", "RendGEN1", "controlGEN1"},
    {"GEN2", "CaudalGEN2", "DTGEN2", "PGEN2", "RendGEN2", "controlGEN2"},
    {"DEP", "CaudalDEP", "DTDEP", "PDEP", "RendDEP", "controlDEP"},
    {"INT", "CaudalINT", "DTINT", "PINT", "RendINT", "controlINT"},
    {"RET", "CaudalRET", "DTRET", "PRET", "RendRET", "controlRET"}};

// Lo que deciden los textos de un bloque.
struct Contexto {
  const SistemaResidencial& sistema;
  const Instalaciones& bloque;
  T tipo;
  C clase;
  ArregloACS arreglo;
  bool zona, bombaYCaldera, bombaDeCalor, caldera;
  bool agua;  // calienta o enfría la zona con agua

  Contexto(const SistemaResidencial& s, const Instalaciones& b)
      : sistema(s),
        bloque(b),
        tipo(TipoSistemaDe(s.Tipo_sistema)),
        clase(ClaseGeneradorDe(b.Seleccion)),
        arreglo(ResolverArreglo(tipo, b)),
        zona(DaCalefaccion(tipo) || DaRefrigeracion(tipo)),
        bombaYCaldera(clase == C::BombaCalorCaldera),
        bombaDeCalor(clase == C::BombaCalor || bombaYCaldera),
        caldera(clase == C::Calentador || clase == C::Caldera || clase == C::CalderaMixta),
        agua(zona &&
             (caldera || bombaDeCalor || clase == C::Enfriadora || clase == C::EstacionalAgua)) {}

  // Las clases que no lo eligen llevan en el campo uno que no usan.
  bool Lado(L lado) const {
    return arreglo.lado == lado &&
           !(DistribucionesOfrecidas(sistema.Tipo_sistema, bloque.Seleccion).empty() &&
             clase != C::Calentador);
  }
  bool LlevaRetorno() const {
    return DaACS(tipo) && (arreglo.deposito || clase == C::Calentador ||
                           clase == C::BombaDedicada || clase == C::CalderaMixta);
  }
  bool ConRetorno() const { return LlevaRetorno() && bloque.Retorno == kRetornos[1]; }
  bool InteriorConVentilador() const {
    return DaRefrigeracion(tipo) && (clase == C::MultiSplit || clase == C::CaudalVariable);
  }
};

class Lista {
 public:
  void Campo(G grupo, Texto etiqueta, ListaTextos valores = {}, ListaTextos rotulos = {}) {
    campos.push_back({grupo, etiqueta, valores, rotulos});
  }
  void Campos(G grupo, std::initializer_list<Texto> etiquetas) {
    for (const Texto e : etiquetas) Campo(grupo, e);
  }
  // Una lista vacía es que no se elige.
  void Eleccion(G grupo, Texto etiqueta, ListaTextos valores) {
    if (!valores.empty()) Campo(grupo, etiqueta, valores);
  }
  std::vector<CampoMostrado> campos;
};

void Identidad(const Contexto& c, Lista& l) {
  l.Campo(G::Servicio, "Nombre_sistema");
  l.Campo(G::Servicio, "TipoInstalacionesG", kTipologias, kRotulosTipologias);
  l.Eleccion(G::Servicio, "Seleccion",
             ClasesOfrecidas(c.sistema.Tipo_sistema, c.bloque.TipoInstalacionesG));
}

struct CamposCaldera {
  Texto tipo, potencia, rendimiento, fosil, biomasa;
};
constexpr CamposCaldera kCaldera1 = {"TipoGenerador1", "QcalorCaldera1", "RendCalor1", "CombCalor1",
                                     "CombCalorBio1"};
constexpr CamposCaldera kCaldera2 = {"TipoGenerador2", "QcalorCaldera2", "RendCalor2", "CombCalor2",
                                     "CombCalorBio2"};

void Caldera(Lista& l, const CamposCaldera& campos, const std::string& tipo) {
  l.Campo(G::Generador, campos.tipo, kTiposGenerador);
  l.Campos(G::Generador, {campos.potencia, campos.rendimiento});
  if (tipo == kTiposGenerador[3])
    l.Campo(G::Generador, campos.biomasa, kBiocombustibles);
  else
    l.Campo(G::Generador, campos.fosil, kCombustibles);
}

// ¿Hace el generador las horas en que su resistencia de apoyo entra?
bool LlevaApoyo(const Contexto& c) {
  if (!DaACS(c.tipo) || !c.bombaDeCalor) return false;
  const bool enDeposito = c.Lado(L::IntercambDeposito) || c.Lado(L::InteracumuGenerador);
  return !(c.bombaYCaldera && c.tipo == T::ACS && enDeposito);
}

void Linea(const Contexto& c, Lista& l) {
  const bool deAgua = c.bombaDeCalor || c.clase == C::Enfriadora;
  if (deAgua) l.Campo(G::Generador, "TipoBC1", kTiposBC);
  const bool partida = deAgua && c.bloque.TipoBC1 == kTiposBC[1];
  if (partida || (EsAireAire(c.clase) && c.clase != C::Ventana))
    l.Campos(G::Generador, {"Distanciaext_int", "Perdida_m_tub_ext_int"});
}

void Electricos(const Contexto& c, Lista& l) {
  const bool bomba = c.bombaDeCalor || EsAireAire(c.clase);
  if (bomba && (DaCalefaccion(c.tipo) || DaACS(c.tipo)))
    l.Campos(G::Generador, {"QcalorBC1", "WeCalor1"});
  if (DaRefrigeracion(c.tipo) && (bomba || c.clase == C::Enfriadora)) {
    l.Campo(G::Generador, "QFrioTot1");
    // El caudal variable y los de agua sacan su parte sensible de la total.
    if (EsAireAire(c.clase) && c.clase != C::CaudalVariable) l.Campo(G::Generador, "QFrioSen1");
    l.Campo(G::Generador, "WeFrio1");
  }
  if (c.clase == C::BombaDedicada) l.Campo(G::Generador, "SCOP");
  if (c.clase == C::Radiadores) l.Campo(G::Generador, "RadiadorElectrico");
  if (EsElectricoACS(c.clase)) l.Campo(G::Generador, "QApoyoEquipo");
  if (LlevaApoyo(c)) l.Campo(G::Generador, "QApoyoTermo");
}

void Generador(const Contexto& c, Lista& l) {
  if (c.caldera) Caldera(l, kCaldera1, c.bloque.TipoGenerador1);
  Electricos(c, l);
  Linea(c, l);
  if (c.bombaYCaldera) Caldera(l, kCaldera2, c.bloque.TipoGenerador2);
  if (!EsEstacional(c.clase)) return;
  if (DaCalefaccion(c.tipo)) l.Campo(G::Generador, "RendCalorEst");
  if (DaRefrigeracion(c.tipo)) l.Campo(G::Generador, "RendFrioEst");
  if (DaACS(c.tipo)) l.Campo(G::Generador, "RendACSEst");
  l.Campo(G::Generador, "CombEst", kCombustibles);
}

void Unidades(const Edificio& edificio, const Contexto& c, Lista& l) {
  if (!EsEstacional(c.clase) || c.clase == C::EstacionalAgua) l.Campo(G::Unidades, "NEquipos");
  // El agua caliente individual de un bloque es la de las viviendas de un tipo.
  if (DaACS(c.tipo) && c.bloque.TipoInstalacionesG == kIndividual &&
      edificio.GetDatosGenerales().PerfilUso == kEdificiosEnBloque)
    l.Campo(G::Unidades, "Nradiadores", kIndicesVivienda, kTiposVivienda);
}

Texto CampoAlimentacion(const AlimentacionOfrecida& a) {
  if (a.campo == &Instalaciones::Alimentacion2) return "Alimentacion2";
  if (a.campo == &Instalaciones::Alimentacion3) return "Alimentacion3";
  if (a.campo == &Instalaciones::Alimentacion4) return "Alimentacion4";
  return "Alimentacion";
}

void Deposito(const Contexto& c, Lista& l) {
  const std::string& servicios = c.sistema.Tipo_sistema;
  l.Eleccion(G::Deposito, "Distribucion", DistribucionesOfrecidas(servicios, c.bloque.Seleccion));
  l.Eleccion(G::Deposito, "Distribucion2", Distribuciones2Ofrecidas(servicios, c.bloque.Seleccion));
  const AlimentacionOfrecida alimentacion = AlimentacionDeBloque(servicios, c.bloque);
  if (alimentacion.campo != nullptr)
    l.Campo(G::Deposito, CampoAlimentacion(alimentacion), alimentacion.valores);
  const AlimentacionACS a = c.arreglo.alimentacion;
  if (c.arreglo.deposito) l.Campos(G::Deposito, {"Volumen", "UA_deposito", "LD_deposito"});
  const bool serpentin = c.Lado(L::InteracumuGenerador) || c.Lado(L::Interacumulador) ||
                         a == AlimentacionACS::RecirculadoInteracumuladorS;
  if (c.arreglo.deposito && serpentin) l.Campo(G::Deposito, "AintermbD");
  if (a == AlimentacionACS::RecirculadoSolar || c.arreglo.RecirculadoPorSerpentin())
    l.Campo(G::Deposito, "AintermbD2");
  const bool exterior = c.Lado(L::IntercambDeposito) || (c.zona && c.Lado(L::Deposito));
  if ((c.arreglo.deposito && exterior) || (c.arreglo.captadores && c.Lado(L::Intercambiador)))
    l.Campo(G::Deposito, "EfiIntercamb");
}

void Bombas(const Contexto& c, Lista& l) {
  for (const Texto circuito : BombasUsadas(c.sistema, c.bloque))
    for (const CamposBomba& b : kCamposBomba) {
      if (b.circuito != circuito) continue;
      l.Campos(G::Bombas, {b.caudal, b.altura, b.rendimiento, b.salto});
      l.Campo(G::Bombas, b.control, kControlesBomba);
    }
}

void Emisores(const Contexto& c, Lista& l) {
  l.Eleccion(G::Emisores, "Emisor", EmisoresOfrecidos(c.sistema.Tipo_sistema, c.bloque.Seleccion));
  if (c.InteriorConVentilador()) l.Campo(G::Emisores, "ConsumoEmisor", kConsumosEmisor);
  const bool interior = c.InteriorConVentilador() && c.bloque.ConsumoEmisor == kConsumosEmisor[1];
  if (interior || (c.agua && EmisorConVentilador(c.bloque.Emisor)))
    l.Campos(G::Emisores, {"NEmisores", "CaudalVent", "SaltoPVent", "rendVent"});
}

void Retorno(const Contexto& c, Lista& l) {
  if (!c.LlevaRetorno()) return;
  l.Campo(G::Retorno, "Retorno", kRetornos);
  if (!c.ConRetorno()) return;
  l.Campos(G::Retorno, {"Long_tuberias", "Pot_perdida_m_tub"});
  l.Campo(G::Retorno, "NHretorno", kCeroUno, kHorariosRetorno);
}

void Control(const Contexto& c, Lista& l) {
  if (c.bombaYCaldera) l.Campo(G::Control, "EControlTe");
  const bool estacional = EsEstacional(c.clase);
  const bool conAgua = c.agua && !estacional;
  if (conAgua && DaCalefaccion(c.tipo)) l.Campo(G::Control, "TimpCalor");
  if (c.agua && DaRefrigeracion(c.tipo)) l.Campo(G::Control, "TimpFrio");
  if (DaACS(c.tipo) && !estacional) l.Campo(G::Control, "TimpACS");
  // Una bomba de calor que además calienta la zona hace el agua a la consigna alta.
  const bool alta = c.zona && DaACS(c.tipo) && c.bombaDeCalor;
  if (c.arreglo.deposito || alta) l.Campo(G::Control, "TaltaD");
  if (c.arreglo.deposito) l.Campo(G::Control, "TbajaD");
  const bool generadorDeposito = DaACS(c.tipo) && c.arreglo.deposito && !EsElectricoACS(c.clase);
  if (conAgua || (generadorDeposito && !estacional)) l.Campo(G::Control, "saltoGenerador");
  if (conAgua) l.Campo(G::Control, "saltoZona");
}

void Superficies(const Contexto& c, Lista& l) {
  if (DaACS(c.tipo)) l.Campo(G::Superficies, "Sup_ACS");
  if (DaCalefaccion(c.tipo)) l.Campo(G::Superficies, "Sup_Calefaccion");
  if (DaRefrigeracion(c.tipo)) l.Campo(G::Superficies, "Sup_Refrigeracion");
}

}  // namespace

std::vector<CampoMostrado> CamposMostrados(const Edificio& edificio,
                                           const SistemaResidencial& sistema,
                                           const Instalaciones& bloque) {
  const Contexto c(sistema, bloque);
  Lista l;
  Identidad(c, l);
  Generador(c, l);
  Unidades(edificio, c, l);
  Deposito(c, l);
  Bombas(c, l);
  Emisores(c, l);
  Retorno(c, l);
  Control(c, l);
  Superficies(c, l);
  return std::move(l.campos);
}

std::vector<std::string_view> BombasUsadas(const SistemaResidencial& sistema,
                                           const Instalaciones& bloque) {
  const Contexto c(sistema, bloque);
  const bool deposito = DaACS(c.tipo) && c.arreglo.deposito && !EsElectricoACS(c.clase);
  const bool conACS = c.zona && DaACS(c.tipo);
  std::vector<Texto> usadas;
  if (c.agua && (conACS || LadoAguaDe(bloque.Distribucion) == L::ConColector))
    usadas.push_back("SBZ");
  if (c.agua || deposito) usadas.push_back("GEN1");
  if (c.bombaYCaldera) usadas.push_back("GEN2");
  const bool exterior = c.Lado(L::Deposito) || c.Lado(L::Interacumulador);
  if (deposito && (c.Lado(L::IntercambDeposito) || (conACS && exterior))) usadas.push_back("DEP");
  if (deposito && conACS && c.Lado(L::Deposito)) usadas.push_back("INT");
  if (c.ConRetorno()) usadas.push_back("RET");
  return usadas;
}

bool ArregloSinDefinir(const SistemaResidencial& sistema, const Instalaciones& bloque) {
  const Contexto c(sistema, bloque);
  return DaACS(c.tipo) && !EsEstacional(c.clase) && c.arreglo.alimentacion == AlimentacionACS::Otra;
}

bool HayArregloSolar(const Edificio& edificio) {
  for (std::size_t s = 0; s < edificio.NumeroSistemas(); ++s) {
    const SistemaResidencial& sistema = edificio.GetSistema(s);
    const TipoSistema tipo = TipoSistemaDe(sistema.Tipo_sistema);
    if (std::any_of(sistema.instalaciones.begin(), sistema.instalaciones.end(),
                    [tipo](const Instalaciones& b) { return ResolverArreglo(tipo, b).captadores; }))
      return true;
  }
  return false;
}

}  // namespace novex
