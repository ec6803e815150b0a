#include "outputs/administracion/InformeEnvolvente.h"

#include <cmath>

#include "demand/PuentesTermicos.h"
#include "model/PropiedadesHueco.h"
#include "outputs/administracion/EscrituraInforme.h"

namespace novex {
namespace {

using namespace ranura;

constexpr const char* kUsuario = "Usuario";
constexpr const char* kPorDefecto = "PorDefecto";
constexpr const char* kEstimado = "Estimado";
constexpr const char* kHorizontal = "Horizontal";
constexpr std::array<const char*, kSectores> kSigla = {"N", "O", "SO", "S", "SE", "E"};

constexpr const char* kFachada = "Fachada";
constexpr const char* kCubierta = "Cubierta";
constexpr const char* kSuelo = "Suelo";
constexpr const char* kParticionVertical = "ParticionInteriorVertical";
constexpr const char* kParticionHorizontal = "ParticionInteriorHorizontal";
constexpr const char* kAdiabatico = "Adiabatico";

constexpr int kDecimalesEspesor = 4;
constexpr int kDecimalesConductividad = 3;
// Por debajo se escribiría como 0: la capa se da por su resistencia.
constexpr float kMenorConductividad = 0.0005F;

// Una clase de opaco: cómo se llama y de qué tipo es en el informe.
struct ClaseOpaco {
  const char* nombre;
  const char* tipo;
};

// Sin capas ni nombre, la U de un edificio existente es la de su época; en obra nueva la ha dado el
// usuario.
const char* ModoOpaco(const composicion& c, const DatosGenerales& g) {
  const bool sinDefinir = c.capas.empty() && c.nombre == composicion::kNoDefinido;
  return sinDefinir && g.Modo_trabajo != "Nuevo" ? kPorDefecto : kUsuario;
}

void AnadirCapas(XMLNode& elemento, const composicion& c) {
  if (c.capas.empty()) return;
  XMLNode capas = elemento.appendChild("Capas");
  for (const material* m : c.capas) {
    XMLNode n = capas.appendChild("Capa");
    AnadirDato(n, "Material", m->Material);
    AnadirCifra(n, "Espesor", m->Espesor, kDecimalesEspesor);
    if (m->Conductividad >= kMenorConductividad)
      AnadirCifra(n, "ConductividadTermica", m->Conductividad, kDecimalesConductividad);
    else
      AnadirCifra(n, "ResistenciaTermica", m->Resistencia_termica);
    AnadirCifra(n, "Densidad", m->Densidad);
    AnadirCifra(n, "FactorResistenciaVapor", m->Resisvidad_relativa_vapor);
    AnadirCifra(n, "CalorEspecifico", m->CalorEspecifico);
  }
}

class Opacos {
 public:
  Opacos(XMLNode lista, const CasoCalculado& caso)
      : lista_(std::move(lista)),
        edificio_(*caso.edificio),
        recinto_(caso.edificio->GetRecinto(0)),
        r_(caso.resultado->resultados) {}

  void Anadir() {
    for (std::size_t i = 0; i < 5; ++i)
      Sectores({"Muro Exterior", kFachada}, i, MuroExt1 + i, recinto_.Muro_ext_m2[i]);
    for (std::size_t i = 0; i < 3; ++i) {
      Fila({"Cubierta Hz Exterior", kCubierta}, i, TechoExt1 + i, recinto_.Cubierta_horiz_sol_m2[i],
           r_.Uefectiva[TechoExt1 + i], kHorizontal);
      Sectores({"Cubierta Incl. Exterior", kCubierta}, i, TechoInc1 + i,
               recinto_.Cubierta_incl_m2[i]);
    }
    for (std::size_t i = 0; i < 2; ++i) DeDosTipos(i);
    for (std::size_t i = 0; i < 3; ++i)
      Fila({"Suelo al terreno", kSuelo}, i, SueloTerr1 + i, recinto_.Suelo_al_terreno_m2[i],
           r_.Uequivalente[SueloTerr1 + i]);
    if (filas_ == 0) Escribir("Sin cerramientos opacos", kFachada, 0, 0, "", kUsuario);
  }

 private:
  // Al terreno y sobre cámara cuenta la U equivalente; a espacios no acondicionados, b por U.
  void DeDosTipos(std::size_t i) {
    constexpr std::array<Ranura, 2> kMuroNoHab = {MuroOtro3, MuroOtro7};
    constexpr std::array<Ranura, 2> kTechoNoHab = {TechoVent1, TechoVent3};
    constexpr std::array<Ranura, 2> kSueloNoHab = {SueloVent1, SueloVent3};
    const Recinto& r = recinto_;
    const auto efectiva = [&](const ClaseOpaco& clase, std::size_t ranura, float area) {
      Fila(clase, i, ranura, area, r_.Uefectiva[ranura]);
    };
    const auto equivalente = [&](const ClaseOpaco& clase, std::size_t ranura, float area) {
      Fila(clase, i, ranura, area, r_.Uequivalente[ranura]);
    };
    const auto conB = [&](const ClaseOpaco& clase, std::size_t ranura, float area) {
      Fila(clase, i, ranura, area, r_.bU[ranura]);
    };
    efectiva({"Cubierta a terreno", kCubierta}, TechoTerr1 + i, r.Cubierta_terreno_m2[i]);
    conB({"Cubierta a buhardilla", kParticionHorizontal}, kTechoNoHab[i],
         r.Cubierta_techo_ventilado_m2[i]);
    efectiva({"Cubierta adiabática", kAdiabatico}, TechoOtro1 + i, r.Cubierta_adiabatico_m2[i]);
    conB({"Muro a local no acond.", kParticionVertical}, kMuroNoHab[i], r.Muro_otro_local_m2[i]);
    equivalente({"Muro a terreno", kFachada}, MuroTerr1 + i, r.Muro_al_terreno_m2[i]);
    efectiva({"Muro adiabático", kAdiabatico}, MuroOtro1 + i, r.Muro_adiabatico_m2[i]);
    efectiva({"Suelo al exterior", kSuelo}, SueloExt1 + i, r.Suelo_ext_m2[i]);
    conB({"Suelo a local no acond.", kParticionHorizontal}, kSueloNoHab[i],
         r.Suelo_otro_local_m2[i]);
    equivalente({"Suelo a vacio sanitario", kSuelo}, SueloOtro1 + i, r.Suelo_vacio_sanitario_m2[i]);
    efectiva({"Suelo adiabático", kAdiabatico}, SueloOtro2 + i, r.Suelo_adiabatico_m2[i]);
  }

  void Sectores(const ClaseOpaco& clase, std::size_t tipo, std::size_t ranura,
                const PorSector& areas) {
    for (std::size_t s = 0; s < kSectores; ++s)
      Fila(clase, tipo, ranura, areas[s], r_.Uefectiva[ranura], kSigla[s]);
  }

  // \param U W/m2K \param orientacion vacía donde no la hay
  void Fila(const ClaseOpaco& clase, std::size_t tipo, std::size_t ranura, float area, float U,
            const std::string& orientacion = {}) {
    if (!(area > 0.0F)) return;
    const composicion& c = edificio_.GetComposicion(ranura);
    std::string nombre = std::string(clase.nombre) + " " + std::to_string(tipo + 1);
    if (!orientacion.empty() && orientacion != kHorizontal) nombre += " " + orientacion;
    if (c.nombre != composicion::kNoDefinido) nombre += ": " + c.nombre;
    XMLNode n = Escribir(nombre, clase.tipo, area, U, orientacion,
                         ModoOpaco(c, edificio_.GetDatosGenerales()));
    AnadirCapas(n, c);
  }

  XMLNode Escribir(const std::string& nombre, const char* tipo, float area, float U,
                   const std::string& orientacion, const char* modo) {
    XMLNode n = lista_.appendChild("Elemento");
    AnadirDato(n, "Nombre", nombre);
    AnadirDato(n, "Tipo", tipo);
    AnadirCifra(n, "Superficie", area);
    if (!orientacion.empty()) AnadirDato(n, "Orientacion", orientacion);
    AnadirCifra(n, "Transmitancia", U);
    AnadirDato(n, "ModoDeObtencion", modo);
    ++filas_;
    return n;
  }

  XMLNode lista_;
  const Edificio& edificio_;
  const Recinto& recinto_;
  const ResultadosCaso& r_;
  int filas_ = 0;
};

// Factor solar de cada clase de vidrio: quien lo ha dejado como está no lo ha medido. De un hueco
// que es todo marco el vidrio no dice nada.
const char* ModoHueco(const Huecos& g) {
  constexpr std::array<float, 5> kDeClase = {0.85F, 0.75F, 0.7F, 0.7F, 0.7F};
  constexpr float kIgual = 1e-4F;
  if (g.Fraccion_marco_tanto_por_cien >= 100.0F) return kUsuario;
  const int clase = g.Indice_tipo_cristal;
  const bool deClase =
      clase >= 0 && clase < static_cast<int>(kDeClase.size()) &&
      std::fabs(g.FS_cristal_tanto_por_uno - kDeClase[static_cast<std::size_t>(clase)]) < kIgual;
  return deClase ? kEstimado : kUsuario;
}

void AnadirHueco(XMLNode& lista, const std::string& nombre, bool lucernario, float area,
                 const char* orientacion, const Huecos& g) {
  const FigurasHueco figuras = CalcularFigurasHueco(g);
  XMLNode n = lista.appendChild("Elemento");
  AnadirDato(n, "Nombre", nombre);
  AnadirDato(n, "Tipo", lucernario ? "Lucernario" : "Hueco");
  AnadirCifra(n, "Superficie", area);
  AnadirDato(n, "Orientacion", orientacion);
  AnadirCifra(n, "Transmitancia", figuras.UHueco);
  AnadirCifra(n, "FactorSolar", figuras.FSHueco);
  AnadirDato(n, "ModoDeObtencionTransmitancia", ModoHueco(g));
  AnadirDato(n, "ModoDeObtencionFactorSolar", ModoHueco(g));
}

void AnadirSinHuecos(XMLNode& lista) {
  XMLNode n = lista.appendChild("Elemento");
  AnadirDato(n, "Nombre", "Sin huecos");
  AnadirDato(n, "Tipo", "Hueco");
  for (const char* cifra : {"Superficie", "Transmitancia", "FactorSolar"})
    AnadirCifra(n, cifra, 0.0);
  AnadirDato(n, "ModoDeObtencionTransmitancia", kUsuario);
  AnadirDato(n, "ModoDeObtencionFactorSolar", kUsuario);
}

void AnadirHuecos(XMLNode& envolvente, const Edificio& edificio) {
  XMLNode lista = envolvente.appendChild("HuecosyLucernarios");
  for (std::size_t i = 0; i < edificio.NumeroHuecos(); ++i) {
    const Huecos& g = edificio.GetHuecos(i);
    for (std::size_t c = 0; c < kColumnasHuecos; ++c) {
      if (g.columnas[c].recintos.empty()) continue;
      const bool horizontal = c >= kSectores;
      const char* orientacion = horizontal ? kHorizontal : kSigla[c];
      AnadirHueco(
          lista, g.Nombre_hueco + " " + orientacion, horizontal || g.Tipo_de_hueco == kLucernario,
          g.Ancho_m * g.Alto_m * static_cast<float>(g.columnas[c].recintos.size()), orientacion, g);
    }
  }
  if (lista.childCount() == 0) AnadirSinHuecos(lista);
}

struct FilaPuente {
  Puente puente;
  const char* nombre;
  const char* tipo;
};
constexpr std::array<FilaPuente, kPuentes> kFilasPuente = {
    {{puente_forjados, "Frente de forjado", "FRENTE_FORJADO"},
     {puente_cubiertas, "Unión con la cubierta", "UNION_CUBIERTA"},
     {puente_suelo_exterior, "Suelo al exterior", "ESQUINA_CONVEXA_FORJADO"},
     {puente_esquina_saliente, "Esquina", "ESQUINA_CONVEXA_CERRAMIENTO"},
     {puente_pilares, "Pilar", "PILAR"},
     {puente_suelo_terreno, "Unión con la solera", "UNION_SOLERA_PAREDEXT"},
     {puente_ventanas, "Contorno de hueco", "HUECO_VENTANA"}}};

float LongitudPuente(const Construccion& c, Puente puente) {
  switch (puente) {
    case puente_ventanas:
      return c.Perimetro_huecos;
    case puente_forjados:
      return c.Perimetro_forjados;
    case puente_cubiertas:
      return c.Perimetro_cubiertas;
    case puente_suelo_exterior:
      return c.Perimetro_suelo_ext;
    case puente_esquina_saliente:
      return c.Longitud_esquinas_sal_menos_ent;
    case puente_pilares:
      return LongitudPilares(c);
    case puente_suelo_terreno:
      return c.Perimetro_suelo_terreno;
  }
  return 0;
}

const char* ModoPuentes(const Construccion& c) {
  constexpr int kDarValores = 4, kValoresPorDefecto = 5;
  if (c.Def_Puentes_termicos == kDarValores) return kUsuario;
  return c.Def_Puentes_termicos == kValoresPorDefecto ? kPorDefecto : kEstimado;
}

void AnadirPuentes(XMLNode& envolvente, const Construccion& c) {
  XMLNode lista;
  for (const FilaPuente& fila : kFilasPuente) {
    const float longitud = LongitudPuente(c, fila.puente);
    if (longitud == 0.0F || !std::isfinite(longitud)) continue;
    if (!lista) lista = envolvente.appendChild("PuentesTermicos");
    XMLNode n = lista.appendChild("Elemento");
    AnadirDato(n, "Nombre", fila.nombre);
    AnadirDato(n, "Tipo", fila.tipo);
    AnadirCifra(n, "Longitud", longitud);
    AnadirCifra(n, "Transmitancia", c.U_L_Puentes[fila.puente]);
    AnadirDato(n, "ModoDeObtencion", ModoPuentes(c));
  }
}

}  // namespace

void AnadirEnvolvente(XMLNode& informe, const CasoCalculado& caso) {
  XMLNode envolvente = informe.appendChild("DatosEnvolventeTermica");
  Opacos(envolvente.appendChild("CerramientosOpacos"), caso).Anadir();
  AnadirHuecos(envolvente, *caso.edificio);
  AnadirPuentes(envolvente, caso.edificio->GetConstruccion());
}

}  // namespace novex
