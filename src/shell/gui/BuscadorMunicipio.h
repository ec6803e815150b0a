#pragma once

#include <QComboBox>
#include <QCompleter>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QObject>
#include <QStandardItemModel>
#include <functional>

#include "entry/CatalogoMunicipios.h"

namespace novex::gui {

/// Busca un municipio tecleando: la provincia acota y la lista sigue a lo que se teclea, sin
/// distinguir mayúsculas ni acentos.
class BuscadorMunicipio : public QObject {
  Q_OBJECT

 public:
  using Catalogo = std::function<const CatalogoMunicipios&()>;
  /// Pone sus dos filas en un formulario. \param catalogo se pide la primera vez que hace falta
  BuscadorMunicipio(QFormLayout* formulario, Catalogo catalogo, QWidget* pagina);
  /// Enseña el municipio del caso.
  void Poner(const QString& provincia, const QString& municipio);
  QComboBox* EditorProvincia() const { return provincia_; }
  QLineEdit* EditorMunicipio() const { return municipio_; }

 signals:
  void Elegido(const QString& provincia, const QString& municipio);

 protected:
  bool eventFilter(QObject* quien, QEvent* evento) override;

 private:
  void LlenarProvincias();
  void Ofrecer(const QString& letras);
  /// \param provincia vacía, toda España
  void OfrecerEn(const QString& letras, const std::string& provincia);
  void Tomar(const QModelIndex& fila);
  void AlPulsarIntro();
  void Restaurar();

  Catalogo catalogo_;
  QComboBox* provincia_;
  QLineEdit* municipio_;
  QLabel* aviso_;
  QCompleter* lista_;
  QStandardItemModel* candidatos_;
  QString suProvincia_, suMunicipio_;  ///< los del caso
};

}  // namespace novex::gui
