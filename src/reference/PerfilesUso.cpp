#include "reference/PerfilesUso.h"

#include <array>
#include <cmath>
#include <optional>
#include <string>

#include "base/Calendario.h"
#include "base/NumeroTexto.h"

namespace novex {
namespace {

constexpr int kPrimerTerciario = 3;
constexpr std::string_view kResidencial = "Residencial";
constexpr std::array<std::string_view, 12> kTerciarios = {
    "8hB", "8hM", "8hA", "12hB", "12hM", "12hA", "16hB", "16hM", "16hA", "24hB", "24hM", "24hA"};
constexpr std::string_view kPerfilUsuario = "12hM";

constexpr std::size_t kHorasDia = 24;
constexpr float kSinMaximo = 1e6F;

// Lectura que se detiene en la primera falta y la recuerda, para no cargar un uso a medias.
class LectorUso {
 public:
  /// El hijo de un nombre cuyo atributo vale `valor`.
  XMLNode Elegir(const XMLNode& padre, std::string_view nombre, std::string_view atributo,
                 std::string_view valor) {
    std::size_t i = 0;
    while (const XMLNode hijo = padre.childNamed(nombre, &i))
      if (hijo.attributeValue(atributo) == valor) return hijo;
    Faltar(std::string(nombre) + " \"" + std::string(valor) + "\"");
    return {};
  }

  XMLNode Hijo(const XMLNode& padre, std::string_view nombre) {
    const XMLNode hijo = padre.childNamed(nombre);
    if (!hijo) Faltar(std::string(nombre));
    return hijo;
  }

  std::string Texto(const XMLNode& nodo, std::string_view atributo) {
    const auto texto = nodo.attributeValue(atributo);
    if (!texto) Faltar(Donde(nodo, atributo));
    return std::string(texto.value_or(""));
  }

  float Real(const XMLNode& nodo, std::string_view atributo, float maximo = kSinMaximo) {
    double valor = 0;
    if (LeerReal(Texto(nodo, atributo), valor) && valor >= 0 &&
        valor <= static_cast<double>(maximo))
      return static_cast<float>(valor);
    Faltar(Donde(nodo, atributo));
    return 0;
  }

  int Entero(const XMLNode& nodo, std::string_view atributo, int maximo) {
    const float valor = Real(nodo, atributo, static_cast<float>(maximo));
    if (valor != std::trunc(valor)) Faltar(Donde(nodo, atributo));
    return static_cast<int>(valor);
  }

  void Faltar(std::string que) {
    if (!falta_) falta_ = std::move(que);
  }
  const std::optional<std::string>& Falta() const { return falta_; }

 private:
  static std::string Donde(const XMLNode& nodo, std::string_view atributo) {
    return std::string(nodo.nameOf().value_or("")) + " " + std::string(atributo);
  }

  std::optional<std::string> falta_;
};

std::string Ordinal(std::size_t n) {
  return "C" + std::to_string(n);
}

void LeerHorario(const XMLNode& horario, Perfiles& perfiles, LectorUso& lector) {
  for (std::size_t familia = 0; familia < kFamilias; ++familia)
    for (std::size_t clase = 0; clase < kClasesDia; ++clase) {
      const XMLNode tabla = lector.Hijo(
          horario, std::string(kNombreFamilia[familia]) + std::string(kNombreClaseDia[clase]));
      if (!tabla) return;
      for (std::size_t h = 1; h <= kHorasDia; ++h)
        perfiles.tabla[familia][clase][h] = lector.Real(tabla, Ordinal(h));
    }
}

// Los doce meses van por posición.
void LeerCalendario(const XMLNode& calendario, Perfiles& perfiles, LectorUso& lector) {
  if (calendario.childCount() != kMeses) return lector.Faltar("Calendario de doce meses");
  std::size_t dia = 0;
  for (std::size_t mes = 1; mes <= kMeses; ++mes)
    for (int d = 1; d <= kDiasMes[mes]; ++d, ++dia)
      perfiles.calendario[dia] =
          lector.Entero(calendario.childAt(mes - 1), Ordinal(static_cast<std::size_t>(d)),
                        static_cast<int>(kClasesDia));
}

void LeerMaximos(const XMLNode& maximos, DatosGenerales& generales, LectorUso& lector) {
  generales.Sensibleocupantes = lector.Real(maximos, "Sensibleocupantes");
  generales.Latenteocupantes = lector.Real(maximos, "Latenteocupantes");
  generales.Iluminacion = lector.Real(maximos, "Iluminacion");
  generales.Equipos = lector.Real(maximos, "Equipos");
}

}  // namespace

std::string_view ClaveUsoPorDefecto(int perfilUso) {
  if (perfilUso < kPrimerTerciario) return kResidencial;
  const auto i = static_cast<std::size_t>(perfilUso - kPrimerTerciario);
  return i < kTerciarios.size() ? kTerciarios[i] : kPerfilUsuario;
}

bool AplicarUsoPorDefecto(const XMLNode& raiz, std::string_view clave, Edificio& edificio,
                          Mensajes& mensajes) {
  LectorUso lector;
  DatosGenerales generales = edificio.GetDatosGenerales();
  Localizacion sitio = edificio.GetLocalizacion();
  const XMLNode perfil = lector.Elegir(raiz, "Perfil", "Clave", clave);
  if (perfil) {
    generales.Tipo = clave;
    sitio.mesmin = lector.Entero(perfil, "mesmin", kMeses + 1);
    sitio.mesmax = lector.Entero(perfil, "mesmax", kMeses + 1);
    LeerMaximos(lector.Hijo(perfil, "Valores_Maximos"), generales, lector);
    const XMLNode acciones = lector.Hijo(perfil, "AccionMes");
    for (std::size_t mes = 1; mes <= kMeses; ++mes)
      generales.perfiles.AccionMes[mes] = lector.Texto(acciones, Ordinal(mes));
    LeerHorario(lector.Elegir(raiz, "Horario", "Nombre", lector.Texto(perfil, "Horario")),
                generales.perfiles, lector);
    LeerCalendario(lector.Hijo(raiz, "Calendario"), generales.perfiles, lector);
  }
  if (lector.Falta()) {
    mensajes.Avisar("AVISO", "No se cargan los valores de uso por defecto \"" + std::string(clave) +
                                 "\": falta o no vale " + *lector.Falta());
    return false;
  }
  edificio.SetDatosGenerales(std::move(generales));
  edificio.SetLocalizacion(std::move(sitio));
  return true;
}

}  // namespace novex
