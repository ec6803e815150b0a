#pragma once

#include <QObject>
#include <functional>
#include <optional>
#include <string_view>

#include "calculation/ComprobacionesPrevias.h"
#include "shell/SesionProyecto.h"

namespace novex::gui {

/// Páginas de la tira de pestañas, en su orden.
enum class Destino {
  Titulo,
  Global,
  Edificio,
  Instalaciones,
  Certificacion,
  Comparacion,
  HE,
  Definicion
};

/// El subdestino de la pestaña de resultados que la abre en las series horarias.
inline constexpr const char* kSubdestinoTemp = "Temp";

/// Lo que comparten las páginas: la sesión y el aviso de que algo ha cambiado. Una página edita por
/// aquí y se refresca cuando se le dice; no conoce a las demás.
class ContextoGui : public QObject {
  Q_OBJECT

 public:
  explicit ContextoGui(SesionProyecto& sesion) : sesion_(sesion) {}

  SesionProyecto& Sesion() { return sesion_; }
  const Edificio& Caso() const { return sesion_.Caso(); }
  FicherosPrograma& Ficheros() { return sesion_.Ficheros(); }

  /// Edita el caso activo y lo anuncia. \param nombre qué se cambia, para "Deshacer"
  /// \param recalcula falso en textos administrativos, imágenes, costes y notas
  /// \returns si ha cambiado algo
  bool Editar(const QString& nombre, const SesionProyecto::CambioCaso& cambio,
              bool recalcula = true);
  /// Edita el proyecto entero y lo anuncia.
  bool EditarProyecto(const QString& nombre, const SesionProyecto::CambioProyecto& cambio);
  /// Calcula los casos del proyecto que no lo están: entrar en una página de resultados es
  /// calcular. Uno que no se puede calcular no impide los demás. Un cálculo que tarda enseña su
  /// avance y se puede cancelar: queda entonces lo que ya estaba calculado. \returns si están
  /// todos; si no, por qué en `FalloCalculo`, un caso por línea
  bool Calcular();
  const QString& FalloCalculo() const { return fallo_; }
  /// ¿Está la ventana en medio de un cálculo, atendiendo solo a su panel? Los trabajos de los ratos
  /// libres esperan.
  bool Calculando() const { return calculando_; }
  /// Da el proyecto por guardado en ese fichero por una orden que no es la de guardar.
  void DarPorGuardado(const std::filesystem::path& fichero);
  /// Lleva a una pestaña de la ventana. \param subdestino la página de ella que se abre; vacío, la
  /// que tenga
  void IrA(Destino destino, const QString& subdestino = {}) {
    emit IrADestino(destino, subdestino);
  }
  /// Lleva a donde se corrige lo que impide un cálculo.
  void IrA(const MensajePrevio& motivo) { emit Ir(motivo); }
  /// Lleva a una página y, en ella, a un campo.
  void IrA(PaginaProyecto pagina, std::string_view campo = {}) {
    emit Ir({.texto = {}, .pagina = pagina, .campo = campo, .ranura = {}});
  }

 signals:
  /// El caso activo ha cambiado por una edición, al deshacerla o al rehacerla.
  void Editado();
  /// El proyecto, sus casos o el caso activo son otros.
  void ProyectoCambiado();
  /// El proyecto está guardado, en el fichero de la sesión.
  void Guardado();
  /// Se pide el fichero para la administración.
  void PideAdministracion();
  /// Hay que enseñar una pestaña y una página de ella.
  void IrADestino(novex::gui::Destino destino, const QString& subdestino);
  /// Hay que enseñar dónde se corrige algo.
  void Ir(const novex::MensajePrevio& motivo);

 private:
  SesionProyecto& sesion_;
  QString fallo_;
  bool calculando_ = false;
};

}  // namespace novex::gui
