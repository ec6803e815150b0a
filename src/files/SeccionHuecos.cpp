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
constexpr int kDecimales = kDecimalesHueco;

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

float* Separacion(Huecos& grupo, const CampoColumna& campo) {
  return &grupo.columnas[campo.columna].Separacion_ventanas_vertical;
}
float* Altura(Huecos& grupo, const CampoColumna& campo) {
  return &grupo.columnas[campo.columna].obstaculos[campo.obstaculo].altura;
}
float* Distancia(Huecos& grupo, const CampoColumna& campo) {
  return &grupo.columnas[campo.columna].obstaculos[campo.obstaculo].distancia;
}

void LeerGrupo(const XMLNode& nodo, H& grupo, Mensajes& mensajes) {
  LeerCampos<H>(nodo, kCampos, grupo, mensajes);
  camposFichero::Buscador buscador(nodo, Lugar::Hijos);
  for (const CampoColumna& campo : CamposDeColumnas()) {
    const std::string_view texto = buscador.Valor(campo.etiqueta).value_or("");
    if (float* medida = campo.Medida(grupo))
      *medida = camposFichero::LeerReal(texto, campo.etiqueta, mensajes);
    else
      grupo.columnas[campo.columna].PonerNumero(static_cast<std::size_t>(camposFichero::LeerEntero(
          texto, campo.etiqueta, 0, limiteProyecto::kHuecosColumna, mensajes)));
  }
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
    for (const CampoColumna& campo : CamposDeColumnas())
      AnadirValor(nodo, campo.etiqueta, TextoDeColumna(campo, grupo));
  }
}

std::span<const Campo<Huecos>> CamposDeHuecos() {
  return kCampos;
}

const std::vector<CampoColumna>& CamposDeColumnas() {
  static const std::vector<CampoColumna> campos = [] {
    std::vector<CampoColumna> hechos;
    for (std::size_t c = norte; c < kSectores; ++c) {
      const std::string sector(kNombreSector[c]);
      hechos.push_back({"Numero_ventanas_" + sector, c});
      if (c == norte) continue;
      hechos.push_back({"Separacion_ventanas_vertical_" + sector, c, 0, Separacion});
      const DireccionesObstaculo direcciones = DireccionesDeColumna(c);
      for (std::size_t p = 0; p < direcciones.cuantas; ++p) {
        const std::string hacia(kNombreSector[direcciones.sector[p]]);
        const std::string ventana = "Ventana_" + sector;
        hechos.push_back({ventana + "_altura_obstaculo_" + hacia, c, p, Altura});
        hechos.push_back({ventana + "_distancia_obstaculo_" + hacia, c, p, Distancia});
      }
    }
    hechos.push_back({"Numero_lucernarios_Hz", kColumnaHorizontal});
    return hechos;
  }();
  return campos;
}

std::string TextoDeColumna(const CampoColumna& campo, Huecos& grupo) {
  if (const float* medida = campo.Medida(grupo))
    return Fijo(static_cast<double>(*medida), kDecimales);
  return std::to_string(grupo.columnas[campo.columna].recintos.size());
}

}  // namespace novex
