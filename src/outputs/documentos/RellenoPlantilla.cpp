#include "outputs/documentos/RellenoPlantilla.h"

#include <algorithm>
#include <initializer_list>
#include <span>

namespace novex {
namespace {

constexpr std::string_view kFinBloque = "-->";
// Sustituciones de una línea antes de dejarla como está: un valor que trae su propia marca no
// acabaría nunca.
constexpr int kSustitucionesMaximas = 200;

using Celdas = std::initializer_list<std::string_view>;

// Recorre un texto línea a línea.
class Lineas {
 public:
  explicit Lineas(std::string_view texto) : resto_(texto) {}
  // \returns false si no queda ninguna
  bool Siguiente(std::string_view& linea) {
    if (resto_.empty()) return false;
    const std::size_t fin = std::min(resto_.find('\n'), resto_.size());
    linea = resto_.substr(0, fin);
    if (linea.ends_with('\r')) linea.remove_suffix(1);
    resto_.remove_prefix(std::min(fin + 1, resto_.size()));
    return true;
  }

 private:
  std::string_view resto_;
};

void Fila(Celdas celdas, std::string& salida) {
  salida += "\t<TR VALIGN=MIDDLE>\n";
  for (const std::string_view celda : celdas) {
    salida += "\t\t<TD>\n\t\t\t<P CLASS=\"western\" ALIGN=CENTER>";
    salida.append(celda).append("</P>\n\t\t</TD>\n");
  }
  salida += "\t</TR>\n";
}

void FilasEquipos(const std::vector<EQUIPO>& equipos, std::string& salida) {
  for (const EQUIPO& e : equipos)
    Fila({e.nombre, e.generador, e.potencia, e.rendimientoNominal, e.rendimientoEstacional,
          e.vector},
         salida);
}

void TablaCapas(const MC_CERRAMIENTO& c, std::string& salida) {
  salida += "Composici&oacute;n: " + c.composicion + "\n";
  salida +=
      "<TABLE BORDER=1 BORDERCOLOR=\"#000000\" CELLPADDING=0 CELLSPACING=0 width=\"100%\">\n"
      "\t<COL WIDTH=40%>\n";
  for (int columna = 1; columna < 7; ++columna) salida += "\t<COL WIDTH=10%>\n";
  Fila({"Nombre de la capa", "cond<BR>[W/(mK)]", "den<BR>[kg/m<sup>3</sup>]", "Cp<BR>[kJ/(kgK)]",
        "&mu;<BR>[adim.]", "rterm<BR>[m<sup>2</sup>K/W]", "esp<BR>[m]"},
       salida);
  if (c.capas.empty()) Fila({"No definido", "", "", "", "", "", ""}, salida);
  for (const MC_CAPA& k : c.capas)
    Fila({k.nombre, k.conductividad, k.densidad, k.calorEspecifico, k.factorVapor, k.resistencia,
          k.espesor},
         salida);
  salida += "</TABLE>\n";
}

std::string Celda(std::string_view texto, std::string_view atributos = "") {
  std::string celda = "\t\t<TD";
  if (!atributos.empty()) celda.append(" ").append(atributos);
  return celda.append(">").append(texto).append("</TD>\n");
}

// Capas que alguna composición tiene.
std::size_t CapasUsadas(const std::vector<CONDENSACION_COMPO>& filas) {
  std::size_t usadas = 1;
  for (const CONDENSACION_COMPO& fila : filas)
    for (std::size_t i = 0; i < fila.CAPA.size(); ++i)
      if (!fila.CAPA[i].empty()) usadas = std::max(usadas, i + 1);
  return usadas;
}

void CeldasCapas(const CONDENSACION_COMPO& fila, std::size_t capas, std::string& salida) {
  for (std::size_t i = 0; i < capas; ++i) salida += Celda(fila.CAPA[i]);
}

void TablaCondensaciones(const std::vector<CONDENSACION_COMPO>& filas, std::string& salida) {
  const std::size_t capas = CapasUsadas(filas);
  salida += "\t<TR>\n";
  for (const char* titulo : {"Tipo", "Nombre", "F1", "F2"}) salida += Celda(titulo);
  for (std::size_t i = 0; i < capas; ++i) salida += Celda("Capa");
  salida += Celda("Cumplimiento") + "\t</TR>\n";
  for (std::size_t i = 0; i + 1 < filas.size(); i += 2) {
    const CONDENSACION_COMPO& vapor = filas[i];
    const CONDENSACION_COMPO& saturacion = filas[i + 1];
    salida += "\t<TR>\n" + Celda(vapor.Tipo, "rowspan=\"2\"") +
              Celda(vapor.Nombre, "rowspan=\"2\"") + Celda("FRsi") + Celda(vapor.F2);
    CeldasCapas(vapor, capas, salida);
    salida += Celda("") + "\t</TR>\n\t<TR>\n" + Celda("FRsi,min") + Celda(saturacion.F2);
    CeldasCapas(saturacion, capas, salida);
    salida += Celda(saturacion.Cumplimiento) + "\t</TR>\n";
  }
}

// Una variable con su marca ya hecha.
struct Marca {
  std::string texto;
  std::string_view valor;
};

std::vector<Marca> MarcasDe(std::span<const VBLE> variables) {
  std::vector<Marca> marcas;
  marcas.reserve(variables.size());
  for (const VBLE& v : variables) marcas.push_back({"_" + v.nombre + "_", v.valor});
  return marcas;
}

// Cambia la primera marca de la lista que esté en la línea más allá de su comienzo.
bool SustituirUna(std::span<const Marca> marcas, std::string& linea) {
  // Casi ninguna línea tiene marcas, y buscarlas todas en ella es lo que cuesta.
  if (linea.find('_', 1) == std::string::npos) return false;
  for (const Marca& marca : marcas) {
    const std::size_t donde = linea.find(marca.texto, 1);
    if (donde == std::string::npos) continue;
    linea.replace(donde, marca.texto.size(), marca.valor);
    return true;
  }
  return false;
}

void LineaRellena(std::string_view linea, std::span<const Marca> marcas, std::string& salida) {
  std::string rellena(linea);
  for (int i = 0; i < kSustitucionesMaximas && SustituirUna(marcas, rellena); ++i) {
  }
  salida.append(rellena).append("\n");
}

void HojasMejora(const std::vector<MEJORA>& mejoras, std::string_view plantilla,
                 std::string& salida) {
  for (std::size_t i = 0; i < mejoras.size(); ++i) {
    salida +=
        "<P CLASS=\"TITULOS\" ALIGN=CENTER STYLE=\"margin-bottom: 0cm; page-break-before: "
        "always\"> MEJORA " +
        std::to_string(i + 1) +
        "</P>\n<P CLASS=\"western\" ALIGN=CENTER STYLE=\"margin-bottom: 0cm\"><B>" +
        mejoras[i].titulo + "</B></P>\n";
    const std::vector<Marca> marcas = MarcasDe(mejoras[i].variables);
    Lineas lineas(plantilla);
    for (std::string_view linea; lineas.Siguiente(linea);) LineaRellena(linea, marcas, salida);
  }
}

struct Documento {
  const NOVEX_TO_MODELOCERTIFICADO& modelo;
  std::string_view plantillaMejoras;
};

struct MarcaLista {
  std::string_view texto;
  void (*escribir)(const Documento&, std::string&);
};

// En el orden en que se buscan.
constexpr std::
    array
        kMarcasLista =
            {
                MarcaLista{"<!--TAG:LISTADO_CERRAMIENTOS",
                           [](const Documento& d, std::string& s) {
                             for (const MC_CERRAMIENTO& c : d.modelo.cerramientos)
                               Fila({c.tipo, c.area, c.U, c.definicion, c.composicion}, s);
                           }},
                MarcaLista{"<!--TAG:LISTADO_HUECOS",
                           [](const Documento& d, std::string& s) {
                             for (const HUECO& h : d.modelo.huecos)
                               Fila({h.grupo, h.clase, h.vidrio, h.Umarco, h.Uvidrio, h.g,
                                     h.definicion, h.orientacionYArea},
                                    s);
                           }},
                MarcaLista{"<!--TAG:LISTADO_EQUCAL",
                           [](const Documento& d, std::string& s) {
                             FilasEquipos(d.modelo.equiposCalefaccion, s);
                           }},
                MarcaLista{"<!--TAG:LISTADO_EQUREF",
                           [](const Documento& d, std::string& s) {
                             FilasEquipos(d.modelo.equiposRefrigeracion, s);
                           }},
                MarcaLista{"<!--TAG:LISTADO_EQUACS",
                           [](const Documento& d, std::string& s) {
                             FilasEquipos(d.modelo.equiposACS, s);
                           }},
                MarcaLista{"<!--TAG:LISTADO_CONSUMOS",
                           [](const Documento& d, std::string& s) {
                             for (const CONSUMO& c : d.modelo.consumos)
                               Fila({c.vector, c.generador, c.servicio, c.energia}, s);
                           }},
                MarcaLista{"<!--TAG:LISTADO_PRODUCCIONES",
                           [](const Documento& d, std::string& s) {
                             for (const PRODUCCION& p : d.modelo.producciones)
                               Fila({p.servicio, p.vector, p.origen, p.energia}, s);
                           }},
                MarcaLista{"<!--TAG:LISTADO_PUENTESTERMICOS",
                           [](const Documento& d, std::string& s) {
                             for (const PUENTETERMICO& p : d.modelo.puentes)
                               Fila({p.vacio, p.clase, p.transmitancia, p.longitud, p.origen}, s);
                           }},
                MarcaLista{"<!--TAG:LISTADO_FUNCIONAMIENTO",
                           [](const Documento& d, std::string& s) {
                             for (const auto& [t] : d.modelo.funcionamiento)
                               Fila({t[0], t[1], t[2], t[3], t[4], t[5]}, s);
                           }},
                MarcaLista{
                    "<!--TAG:MEJORAS",
                    [](const Documento& d,
                       std::string& s) { HojasMejora(d.modelo.mejoras, d.plantillaMejoras, s); }},
                MarcaLista{"<!--TAG:CONDENSACIONES_MUROS",
                           [](const Documento& d,
                              std::string& s) { TablaCondensaciones(d.modelo.condensaciones, s); }},
                MarcaLista{"<!--TAG:CERRAMIENTOS_CAPAS", [](const Documento& d, std::string& s) {
                             for (const MC_CERRAMIENTO& c : d.modelo.composiciones)
                               TablaCapas(c, s);
                           }}};

// Salta el bloque de una marca de lista, con su línea final. \param linea la de la marca
void SaltarBloque(std::string_view linea, std::size_t marca, Lineas& lineas) {
  bool acabado = linea.find(kFinBloque, marca) != std::string_view::npos;
  while (!acabado && lineas.Siguiente(linea))
    acabado = linea.find(kFinBloque) != std::string_view::npos;
}

}  // namespace

std::string TextoHtml(std::string_view texto) {
  std::string html;
  html.reserve(texto.size());
  for (const char c : texto) switch (c) {
      case '&':
        html += "&amp;";
        break;
      case '<':
        html += "&lt;";
        break;
      case '>':
        html += "&gt;";
        break;
      case '"':
        html += "&quot;";
        break;
      case '\'':
        html += "&#39;";
        break;
      case '_':  // para que lo escrito no forme una marca de la plantilla
        html += "&#95;";
        break;
      default:
        html += c;
    }
  return html;
}

std::string RellenarPlantilla(std::string_view plantilla, const NOVEX_TO_MODELOCERTIFICADO& modelo,
                              std::string_view plantillaMejoras) {
  const std::vector<Marca> marcas = MarcasDe(modelo.variables);
  const Documento documento{modelo, plantillaMejoras};
  std::string salida;
  salida.reserve(plantilla.size() * 2);
  Lineas lineas(plantilla);
  for (std::string_view linea; lineas.Siguiente(linea);) {
    std::size_t donde = std::string_view::npos;
    const auto lista =
        std::find_if(kMarcasLista.begin(), kMarcasLista.end(), [&](const MarcaLista& m) {
          donde = linea.find(m.texto);
          return donde != std::string_view::npos;
        });
    if (lista == kMarcasLista.end()) {
      LineaRellena(linea, marcas, salida);
      continue;
    }
    lista->escribir(documento, salida);
    SaltarBloque(linea, donde, lineas);
  }
  return salida;
}

}  // namespace novex
