#include "files/ErroresXml.h"
#include "files/LimitesProyecto.h"
#include "files/SeccionesProyecto.h"
#include "model/ListasHuecos.h"
#include "model/PropiedadesHueco.h"

namespace novex {
namespace {

using H = Huecos;

constexpr std::string_view kSeccion = "Huecos";
constexpr std::string_view kHueco = "Hueco";
constexpr int kDecimales = 2;

constexpr std::array kCampos = {
    Texto<&H::Nombre_hueco>("Nombre_hueco"),
    Real<&H::Ancho_m>("Ancho_m", kDecimales),
    Real<&H::Alto_m>("Alto_m", kDecimales),
    Real<&H::Retranqueo_m>("Retranqueo_m", kDecimales),
    Real<&H::Distancia_alero_m>("Distancia_alero_m", kDecimales),
    Real<&H::Longitud_alero_m>("Longitud_alero_m", kDecimales),
    Entero<&H::Indice_tipo_cristal>("Indice_tipo_cristal"),
    Entero<&H::Indice_cristal_concreto>("Indice_cristal_concreto"),
    Entero<&H::Indice_marco>("Indice_marco"),
    Entero<&H::Indice_tipo_junta>("Indice_tipo_junta"),
    Entero<&H::Indice_tipo_sombra_fija>("Indice_tipo_sombra_fija"),
    Entero<&H::Indice_tipo_sombra_movil>("Indice_tipo_sombra_movil"),
    Entero<&H::Indice_tipo_control_Verano>("Indice_tipo_control_Verano"),
    Entero<&H::Indice_tipo_control_Invierno>("Indice_tipo_control_Invierno"),
    Real<&H::U_cristal_W_m2K>("U_cristal_W_m2K", kDecimales),
    Entero<&H::HuecoReh>("HuecoReh"),
    Real<&H::FS_cristal_tanto_por_uno>("FS_cristal_tanto_por_uno", kDecimales),
    Real<&H::U_marco_W_m2K>("U_marco_W_m2K", kDecimales),
    Real<&H::Fraccion_marco_tanto_por_cien>("Fraccion_marco_tanto_por_cien", kDecimales),
    Real<&H::Valor_multiplicativo_FS_verano>("Valor_multiplicativo_FS_verano", kDecimales),
    Real<&H::Valor_multiplicativo_FS_invierno>("Valor_multiplicativo_FS_invierno", kDecimales),
    Real<&H::Valor_multiplicativo_U_verano>("Valor_multiplicativo_U_verano", kDecimales),
    Real<&H::Valor_multiplicativo_U_invierno>("Valor_multiplicativo_U_invierno", kDecimales),
    Real<&H::U_Caja_de_persiana_W_m2K>("U_Caja_de_persiana_W_m2K", kDecimales),
    Real<&H::Altura_Caja_de_persiana_m>("Altura_Caja_de_persiana_m", kDecimales),
    Real<&H::Vinf_Caja_de_persiana_m3_h>("Vinf_Caja_de_persiana_m3_h", kDecimales),
    Real<&H::Permeabilidad_Ventanas>("Permeabilidad_Ventanas", kDecimales),
    Posicion<&H::Existe_Caja_persiana>("Existe_Caja_persiana", listaHuecos::kExisteCaja),
    Posicion<&H::Tipo_de_U_Caja_persiana>("Tipo_de_U_Caja_persiana", listaHuecos::kUCaja),
    Posicion<&H::Tipo_de_Vinf_Caja_persiana>("Tipo_de_Vinf_Caja_persiana",
                                             listaHuecos::kInfiltracionCaja),
    Posicion<&H::Tipo_de_hueco>("Tipo_de_hueco", listaHuecos::kTipos)};

// Recorre las columnas de un grupo en el orden del fichero. `numero` recibe la etiqueta y la
// columna cuyo número de huecos se guarda; `valor`, la etiqueta y la medida.
template <class Grupo, class VisitaNumero, class VisitaValor>
void RecorrerColumnas(Grupo& grupo, VisitaNumero numero, VisitaValor valor) {
  for (std::size_t c = norte; c < kSectores; ++c) {
    auto& columna = grupo.columnas[c];
    const std::string sector(kNombreSector[c]);
    numero("Numero_ventanas_" + sector, columna);
    if (c == norte) continue;
    valor("Separacion_ventanas_vertical_" + sector, columna.Separacion_ventanas_vertical);
    const DireccionesObstaculo direcciones = DireccionesDeColumna(c);
    for (std::size_t p = 0; p < direcciones.cuantas; ++p) {
      const std::string hacia(kNombreSector[direcciones.sector[p]]);
      const std::string ventana = "Ventana_" + sector;
      valor(ventana + "_altura_obstaculo_" + hacia, columna.obstaculos[p].altura);
      valor(ventana + "_distancia_obstaculo_" + hacia, columna.obstaculos[p].distancia);
    }
  }
  numero("Numero_lucernarios_Hz", grupo.columnas[kColumnaHorizontal]);
}

void LeerGrupo(const XMLNode& nodo, H& grupo, Mensajes& mensajes) {
  LeerCampos<H>(nodo, kCampos, grupo, mensajes);
  camposFichero::Buscador buscador(nodo, Lugar::Hijos);
  RecorrerColumnas(
      grupo,
      [&](const std::string& etiqueta, ColumnaHuecos& columna) {
        const int n = camposFichero::LeerEntero(buscador.Valor(etiqueta).value_or(""), etiqueta, 0,
                                                limiteProyecto::kHuecosColumna, mensajes);
        columna.Anadir(static_cast<std::size_t>(n));
      },
      [&](const std::string& etiqueta, float& medida) {
        medida = camposFichero::LeerReal(buscador.Valor(etiqueta).value_or(""), etiqueta, mensajes);
      });
}

void EscribirFiguras(XMLNode& nodo, const H& grupo) {
  const FigurasHueco f = CalcularFigurasHueco(grupo);
  const auto anadir = [&nodo](std::string_view etiqueta, float valor) {
    AnadirTexto(nodo, etiqueta, Fijo(static_cast<double>(valor), kDecimales));
  };
  anadir("C100", f.C100);
  anadir("Ff", f.Ff);
  anadir("FactorSolar", f.FactorSolar);
  anadir("FactorSolarSombraActivada", f.FactorSolarSombraActivada);
  anadir("UHueco", f.UHueco);
  anadir("FSHueco", f.FSHueco);
}

}  // namespace

void LeerHuecos(const XMLNode& novex, Edificio& edificio, Mensajes& mensajes) {
  const XMLNode seccion = novex.childNamed(kSeccion);
  std::size_t i = 0, grupos = 0, huecos = 0;
  while (const XMLNode nodo = seccion.childNamed(kHueco, &i)) {
    if (grupos > 0) edificio.AnadirHuecos(H{});
    H& grupo = edificio.GetHuecos(grupos);
    LeerGrupo(nodo, grupo, mensajes);
    huecos += grupo.NumeroTotal();
    limiteProyecto::Comprobar("grupos de huecos", ++grupos, limiteProyecto::kGruposHuecos);
    limiteProyecto::Comprobar("huecos", huecos, limiteProyecto::kHuecos);
  }
}

void EscribirHuecos(XMLNode& novex, const Edificio& edificio) {
  XMLNode seccion = novex.appendChild(kSeccion);
  for (std::size_t i = 0; i < edificio.NumeroHuecos(); ++i) {
    H grupo = edificio.GetHuecos(i);
    XMLNode nodo = seccion.appendChild(kHueco);
    EscribirCampos<H>(nodo, kCampos, grupo);
    EscribirFiguras(nodo, grupo);
    RecorrerColumnas(
        grupo,
        [&nodo](const std::string& etiqueta, const ColumnaHuecos& columna) {
          AnadirValor(nodo, etiqueta, std::to_string(columna.recintos.size()));
        },
        [&nodo](const std::string& etiqueta, float medida) {
          AnadirValor(nodo, etiqueta, Fijo(static_cast<double>(medida), kDecimales));
        });
  }
}

std::span<const Campo<Huecos>> CamposDeHuecos() {
  return kCampos;
}

}  // namespace novex
