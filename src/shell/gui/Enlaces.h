#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QObject>
#include <functional>
#include <string>
#include <vector>

#include "files/AccesoCampos.h"
#include "shell/gui/ContextoGui.h"

namespace novex::gui {

/// Cómo se enseña y se cambia un campo.
struct OpcionesCampo {
  QString rotulo;  ///< delante del editor, y nombre de la edición
  QString unidad;  ///< detrás; vacía, la de su clave en el catálogo de campos
  QString ayuda;   ///< para la ayuda emergente: la norma o lo que significa
  /// Cómo se guarda, si lo hace una regla; nulo, se pone en el campo.
  std::function<void(Edificio&, std::string_view texto, Mensajes&)> poner;
  /// Cómo se lee, si no está en un campo; nulo, el valor del campo.
  std::function<std::string(const Edificio&)> leer;
  bool recalcula = true;  ///< falso si no cambia los resultados
};

/// El único enlace entre los campos de un caso y sus editores. Un editor se crea con la dirección
/// de su campo (`files/AccesoCampos.h`): sabe su unidad y sus límites por el catálogo, enseña el
/// aviso de un valor que no se admite debajo de él, marca lo que no es el valor de partida y deja
/// la edición en lo que se puede deshacer.
class Enlaces : public QObject {
  Q_OBJECT

 public:
  Enlaces(ContextoGui& contexto, QWidget* pagina);

  /// Un editor con su unidad y su aviso, en una fila de un formulario.
  QLineEdit* Linea(QFormLayout* formulario, const std::string& direccion,
                   const OpcionesCampo& opciones);
  /// Una lista. \param textos los que guarda el fichero \param rotulos los que se enseñan, en el
  /// mismo orden; vacíos, los mismos
  QComboBox* Lista(QFormLayout* formulario, const std::string& direccion,
                   const std::vector<std::string>& textos, const OpcionesCampo& opciones,
                   const std::vector<std::string>& rotulos = {});
  /// Una casilla con dos textos, o un campo lógico o de 0 y 1.
  QCheckBox* Casilla(QFormLayout* formulario, const std::string& direccion,
                     const OpcionesCampo& opciones, const std::string& si = "1",
                     const std::string& no = "0");
  /// Un editor suelto para una rejilla; su aviso sale en `avisos`, que puede ser nulo.
  QLineEdit* Celda(const std::string& direccion, const OpcionesCampo& opciones,
                   QLabel* avisos = nullptr);

  /// Apunta un editor que guarda por una regla de su página, para que conste que el campo lo tiene.
  /// \param ayuda la emergente, si el editor no tiene la suya
  void Propio(const std::string& direccion, QWidget* editor, const QString& ayuda);

  /// Quita los editores: la página los va a hacer de nuevo.
  void Vaciar();
  /// Pone en los editores lo que tiene el caso activo. Un editor que se está tecleando se respeta.
  void Refrescar();
  /// Las direcciones de los campos enlazados; sin los valores que lee una regla y no son un campo.
  std::vector<std::string> Direcciones() const;
  /// El editor de una dirección, o nulo.
  QWidget* Editor(const std::string& direccion) const;

 private:
  struct Enlace {
    std::string direccion;
    OpcionesCampo opciones;
    QWidget* editor = nullptr;
    QLabel* avisos = nullptr;
    std::function<void(const std::string&)> ensenar;  ///< pone un valor en el editor
    std::string mostrado;
  };

  QWidget* ConUnidadYAviso(QWidget* editor, const QString& unidad, QLabel** avisos);
  Enlace& Anadir(const std::string& direccion, const OpcionesCampo& opciones, QWidget* editor,
                 QLabel* avisos, std::function<void(const std::string&)> ensenar);
  void Guardar(std::size_t indice, const std::string& texto);
  std::string Leer(const Enlace& enlace, LectorCampos& lector) const;

  ContextoGui& contexto_;
  QWidget* pagina_;
  std::vector<Enlace> enlaces_;
  std::vector<std::pair<std::string, QWidget*>> propios_;
};

}  // namespace novex::gui
