#include <algorithm>
#include <pugixml.hpp>
#include <system_error>

#include "base/FicheroSeguro.h"
#include "base/Texto.h"
#include "files/ArbolXml.h"
#include "files/xmlParser.h"

namespace novex {

/// Convierte los bytes de un fichero en un árbol. El analizador ajeno solo separa las marcas: las
/// entidades, los blancos y los errores son de aquí.
class LectorXml {
 public:
  LectorXml(std::string bytes, const std::string& nombre)
      : fuente_(std::move(bytes)), ruta_(nombre) {
    if (fuente_.starts_with(kBomUtf8)) fuente_.erase(0, kBomUtf8.size());
  }

  XMLNode Leer(std::string_view raiz) {
    ComprobarBytes();
    // El analizador parte su copia en el sitio; la otra da las posiciones de los errores.
    arbol_->bytes = fuente_;
    const std::vector<std::size_t> cifras = OcultarCifrasIniciales();
    pugi::xml_document documento;
    const pugi::xml_parse_result resultado = documento.load_buffer_inplace(
        arbol_->bytes.data(), arbol_->bytes.size(), pugi::parse_cdata | pugi::parse_ws_pcdata,
        pugi::encoding_utf8);
    if (!resultado) Fallar(resultado);
    // El analizador no mueve ni un byte: las cifras vuelven a su sitio, también en los textos.
    for (const std::size_t donde : cifras) arbol_->bytes[donde] = fuente_[donde];
    arbolXml::Nodo& cima = arbol_->Nuevo({});
    ConvertirContenido(documento, cima, 0);
    return {arbol_, &Elegir(cima, raiz)};
  }

 private:
  [[noreturn]] void Fallar(int codigo, std::size_t donde, std::string_view detalle = {}) const {
    throw ErrorLecturaXml(ruta_, codigo, PosicionDe(fuente_, donde), {}, detalle);
  }

  [[noreturn]] void Fallar(const pugi::xml_parse_result& resultado) const {
    auto donde = static_cast<std::size_t>(std::max<std::ptrdiff_t>(resultado.offset, 0));
    // El analizador da el último byte por el final del fichero.
    if (donde + 1 >= fuente_.size()) donde = fuente_.size();
    const int codigo = Codigo(resultado.status, donde);
    Fallar(codigo, resultado.status == pugi::status_no_document_element ? 0 : donde);
  }

  void ComprobarBytes() const {
    const auto nulo = fuente_.find('\0');
    if (nulo != std::string::npos || fuente_.starts_with("\xFF\xFE") ||
        fuente_.starts_with("\xFE\xFF"))
      Fallar(codigoXml::kNoConvertible, nulo == std::string::npos ? 0 : nulo);
    if (fuente_.size() <= XMLNode::kMaximoMarcas) return;
    for (const char marca : {'<', '='}) {
      const auto n = std::count(fuente_.begin(), fuente_.end(), marca);
      if (static_cast<std::size_t>(n) > XMLNode::kMaximoMarcas)
        Fallar(codigoXml::kInesperado, fuente_.size(),
               "El fichero tiene demasiados elementos o atributos");
    }
  }

  // Un nombre de elemento puede empezar por una cifra, como "1979-2013", y el analizador no lo
  // admite: la cifra se cambia por un byte suyo que no está en ningún texto UTF-8. Devuelve dónde.
  std::vector<std::size_t> OcultarCifrasIniciales() {
    constexpr unsigned char kPrimerByte = 0xF5;
    std::string& bytes = arbol_->bytes;
    std::vector<std::size_t> cambiados;
    for (std::size_t i = bytes.find('<'); i != std::string::npos; i = bytes.find('<', i + 1)) {
      const std::size_t nombre = i + 1 < bytes.size() && bytes[i + 1] == '/' ? i + 2 : i + 1;
      if (nombre >= bytes.size() || bytes[nombre] < '0' || bytes[nombre] > '9') continue;
      bytes[nombre] = static_cast<char>(kPrimerByte + (bytes[nombre] - '0'));
      cambiados.push_back(nombre);
    }
    return cambiados;
  }

  // Código de la tabla para un fallo del analizador en el byte `donde`.
  int Codigo(pugi::xml_parse_status estado, std::size_t donde) const {
    const bool alFinal = donde >= fuente_.size();
    switch (estado) {
      case pugi::status_no_document_element:
        if (SinBlancos(fuente_).empty()) return codigoXml::kVacio;
        return fuente_.find('<') == std::string::npos ? codigoXml::kSinEtiquetas
                                                      : codigoXml::kSinElementos;
      case pugi::status_unrecognized_tag:
        return codigoXml::kFaltaNombreInicial;
      case pugi::status_bad_pi:
      case pugi::status_bad_comment:
      case pugi::status_bad_cdata:
      case pugi::status_bad_doctype:
        return codigoXml::kBloqueSinCerrar;
      case pugi::status_bad_end_element:
        return alFinal ? codigoXml::kSinCerrar : codigoXml::kInesperado;
      case pugi::status_end_element_mismatch:
        // Un elemento que el fichero no llega a cerrar, o un cierre que no es el suyo.
        if (alFinal || donde == 0 || fuente_[donde - 1] != '/') return codigoXml::kSinCerrar;
        return fuente_[donde] == '>' || SinBlancos(fuente_.substr(donde, 1)).empty()
                   ? codigoXml::kFaltaNombreFinal
                   : codigoXml::kCierreDesparejado;
      case pugi::status_bad_pcdata:
      case pugi::status_bad_start_element:
      case pugi::status_bad_attribute:
        return codigoXml::kInesperado;
      default:
        return codigoXml::kDesconocido;
    }
  }

  std::size_t Desplazamiento(const char* p) const {
    return static_cast<std::size_t>(p - arbol_->bytes.data());
  }

  std::string_view Decodificar(std::string_view bytes) {
    if (EsTextoLlano(bytes)) return bytes;
    std::string texto;
    AnadirDecodificado(bytes, texto);
    return arbol_->textos.emplace_back(std::move(texto));
  }

  void AnadirDecodificado(std::string_view bytes, std::string& destino) const {
    const ResultadoEntidades r = DecodificarTextoXml(bytes, destino);
    if (r.codigo != codigoXml::kSinError)
      Fallar(r.codigo, Desplazamiento(bytes.data()) + r.posicion);
  }

  // Un texto puede venir en trozos, separados por comentarios que ya no están. El primero no es
  // todo blancos.
  void CerrarTexto(std::vector<std::string_view>& trozos, arbolXml::Nodo& nodo) {
    while (!trozos.empty() && SinBlancos(trozos.back()).empty()) trozos.pop_back();
    if (trozos.empty()) return;
    trozos.back() = SinBlancosFinales(trozos.back());
    const std::string_view primero = trozos.front();
    trozos.front().remove_prefix(primero.find_first_not_of(" \t\r\n"));
    if (trozos.size() == 1) {
      nodo.AnadirTexto(Decodificar(trozos.front()));
    } else {
      std::string unido;
      for (const std::string_view trozo : trozos) AnadirDecodificado(trozo, unido);
      nodo.AnadirTexto(arbol_->textos.emplace_back(std::move(unido)));
    }
    trozos.clear();
  }

  void ConvertirContenido(const pugi::xml_node& origen, arbolXml::Nodo& destino, int nivel) {
    std::vector<std::string_view> trozos;
    for (const pugi::xml_node& parte : origen.children()) {
      if (parte.type() == pugi::node_pcdata) {
        const std::string_view trozo = parte.value();
        if (!trozos.empty() || !SinBlancos(trozo).empty()) trozos.push_back(trozo);
        continue;
      }
      CerrarTexto(trozos, destino);
      if (parte.type() == pugi::node_cdata)
        destino.AnadirClaro(EnUtf8(parte.value()));
      else if (parte.type() == pugi::node_element)
        destino.AnadirHijo(&ConvertirElemento(parte, nivel + 1));
    }
    CerrarTexto(trozos, destino);
  }

  arbolXml::Nodo& ConvertirElemento(const pugi::xml_node& origen, int nivel) {
    if (nivel > XMLNode::kMaximoNivel)
      Fallar(codigoXml::kInesperado, Desplazamiento(origen.name()),
             "El fichero anida demasiados elementos");
    arbolXml::Nodo& nodo = arbol_->Nuevo(origen.name());
    const auto atributos = origen.attributes();
    nodo.atributos.reserve(
        static_cast<std::size_t>(std::distance(atributos.begin(), atributos.end())));
    for (const pugi::xml_attribute& a : atributos)
      nodo.atributos.push_back({a.name(), Decodificar(a.value())});
    ConvertirContenido(origen, nodo, nivel);
    return nodo;
  }

  // Un bloque no lleva entidades.
  std::string_view EnUtf8(std::string_view bytes) {
    return EsUtf8(bytes) ? bytes : arbol_->textos.emplace_back(Windows1252AUtf8(bytes));
  }

  arbolXml::Nodo& Elegir(arbolXml::Nodo& cima, std::string_view raiz) const {
    arbolXml::Nodo& documento = *cima.hijos.front();
    if (raiz.empty()) return documento;
    const auto buscarEn = [raiz](const arbolXml::Nodo& nodo) -> arbolXml::Nodo* {
      const auto it = std::find_if(nodo.hijos.begin(), nodo.hijos.end(), [raiz](const auto* h) {
        return IgualesSinMayusculas(h->nombre, raiz);
      });
      return it == nodo.hijos.end() ? nullptr : *it;
    };
    if (arbolXml::Nodo* encontrado = buscarEn(cima)) return *encontrado;
    if (arbolXml::Nodo* encontrado = buscarEn(documento)) return *encontrado;
    throw ErrorLecturaXml(ruta_, codigoXml::kRaizDistinta,
                          PosicionDe(fuente_, Desplazamiento(documento.nombre.data())), raiz);
  }

  std::string fuente_;
  std::string ruta_;
  std::shared_ptr<arbolXml::Arbol> arbol_ = std::make_shared<arbolXml::Arbol>();
};

XMLNode XMLNode::loadFile(const std::filesystem::path& path, std::string_view rootTag,
                          ModoCodificacion& modo) {
  std::error_code sinImportancia;
  if (!std::filesystem::is_regular_file(path, sinImportancia))
    throw ErrorLecturaXml(path.string(), codigoXml::kNoEncontrado, {});
  std::string bytes = LeerFichero(path);
  modo.Deducir(bytes);
  return parseString(std::move(bytes), rootTag, path.string());
}

XMLNode XMLNode::loadFile(const std::filesystem::path& path, std::string_view rootTag) {
  ModoCodificacion propio;
  return loadFile(path, rootTag, propio);
}

XMLNode XMLNode::parseString(std::string bytes, std::string_view rootTag,
                             const std::string& nombre) {
  return LectorXml(std::move(bytes), nombre).Leer(rootTag);
}

}  // namespace novex
