#include "shell/gui/Enlaces.h"

#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QStyle>
#include <QVBoxLayout>
#include <map>

#include "base/NumeroTexto.h"
#include "entry/ProyectoNuevo.h"
#include "model/CatalogoCampos.h"
#include "model/ClavesCampos.h"
#include "shell/gui/ListaSinRueda.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

const CampoCatalogo* EntradaDe(const std::string& direccion) {
  const auto datos = BuscarDatosCampo(direccion);
  return datos ? BuscarCampo(ClaveDeCampo(datos->etiqueta)) : nullptr;
}

// Por encima de esto un límite es que no lo hay.
constexpr float kSinLimite = 1e8F;

QString Limites(const CampoCatalogo& entrada) {
  if (entrada.minimo < -kSinLimite) return Q(entrada.unidad);
  if (entrada.maximo > kSinLimite)
    return QObject::tr("Desde %1 %2").arg(Q(General(entrada.minimo)), Q(entrada.unidad));
  return QObject::tr("De %1 a %2 %3")
      .arg(Q(General(entrada.minimo)), Q(General(entrada.maximo)), Q(entrada.unidad));
}

QString Ayuda(const std::string& direccion, const OpcionesCampo& opciones) {
  QStringList lineas;
  if (!opciones.rotulo.isEmpty()) lineas << "<b>" + opciones.rotulo.toHtmlEscaped() + "</b>";
  if (!opciones.ayuda.isEmpty()) lineas << opciones.ayuda.toHtmlEscaped();
  if (const CampoCatalogo* entrada = EntradaDe(direccion)) lineas << Limites(*entrada);
  return lineas.join("<br>");
}

void Marcar(QWidget* editor, bool distinto) {
  if (editor->property("distinto").toBool() == distinto) return;
  editor->setProperty("distinto", distinto);
  editor->style()->unpolish(editor);
  editor->style()->polish(editor);
}

// El valor con que empieza un campo en un proyecto nuevo.
std::string ValorInicial(const std::string& direccion, FicherosPrograma& ficheros) {
  static std::map<std::string, std::string> valores;
  if (valores.empty()) {
    Edificio nuevo;
    RegistroMensajes mensajes;
    PonerValoresIniciales(nuevo, ficheros.Xml("PerfilesUso.xml", "PERFILES_USO"), mensajes);
    LectorCampos lector(nuevo);
    for (const std::string& d : DireccionesDeCampos(nuevo))
      valores[d] = lector.Valor(d).value_or("");
  }
  auto it = valores.find(direccion);
  // Un grupo de huecos que se añade empieza como el primero.
  const std::size_t fin = direccion.find("]/");
  if (it == valores.end() && direccion.starts_with("Hueco[") && fin != std::string::npos)
    it = valores.find("Hueco[1" + direccion.substr(fin));
  return it == valores.end() ? std::string() : it->second;
}

}  // namespace

Enlaces::Enlaces(ContextoGui& contexto, QWidget* pagina)
    : QObject(pagina), contexto_(contexto), pagina_(pagina) {}

QWidget* Enlaces::ConUnidadYAviso(QWidget* editor, const QString& unidad, QLabel** avisos) {
  auto* caja = new QWidget(pagina_);
  auto* columna = new QVBoxLayout(caja);
  columna->setContentsMargins(0, 0, 0, 0);
  columna->setSpacing(2);
  auto* fila = new QHBoxLayout;
  fila->addWidget(editor);
  if (!unidad.isEmpty()) {
    auto* texto = new QLabel(unidad, caja);
    texto->setProperty("papel", "unidad");
    fila->addWidget(texto);
  }
  fila->addStretch(1);
  columna->addLayout(fila);
  auto* aviso = new QLabel(caja);
  aviso->setProperty("papel", "aviso");
  aviso->setWordWrap(true);
  aviso->hide();
  columna->addWidget(aviso);
  *avisos = aviso;
  return caja;
}

Enlaces::Enlace& Enlaces::Anadir(const std::string& direccion, const OpcionesCampo& opciones,
                                 QWidget* editor, QLabel* avisos,
                                 std::function<void(const std::string&)> ensenar) {
  editor->setToolTip(Ayuda(direccion, opciones));
  editor->setObjectName(Q(direccion));
  editor->setAccessibleName(opciones.rotulo);
  enlaces_.push_back({direccion, opciones, editor, avisos, std::move(ensenar), {}});
  return enlaces_.back();
}

QLineEdit* Enlaces::Celda(const std::string& direccion, const OpcionesCampo& opciones,
                          QLabel* avisos) {
  auto* linea = new QLineEdit(pagina_);
  const auto datos = BuscarDatosCampo(direccion);
  const bool numero =
      datos && (datos->clase == ClaseCampo::Real || datos->clase == ClaseCampo::Entero);
  if (numero) linea->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  linea->setMaximumWidth(numero ? 90 : 420);
  linea->setMinimumWidth(numero ? 56 : 220);
  const std::size_t indice = enlaces_.size();
  Anadir(direccion, opciones, linea, avisos, [linea](const std::string& valor) {
    const QSignalBlocker callado(linea);
    linea->setText(Q(valor));
    linea->setModified(false);
  });
  connect(linea, &QLineEdit::editingFinished, this, [this, linea, indice] {
    if (linea->isModified()) Guardar(indice, S(linea->text()));
  });
  return linea;
}

QLineEdit* Enlaces::Linea(QFormLayout* formulario, const std::string& direccion,
                          const OpcionesCampo& opciones) {
  QLineEdit* linea = Celda(direccion, opciones);
  QString unidad = opciones.unidad;
  if (unidad.isEmpty())
    if (const CampoCatalogo* entrada = EntradaDe(direccion)) unidad = Q(entrada->unidad);
  QLabel* avisos = nullptr;
  formulario->addRow(opciones.rotulo, ConUnidadYAviso(linea, unidad, &avisos));
  enlaces_.back().avisos = avisos;
  return linea;
}

QComboBox* Enlaces::Lista(QFormLayout* formulario, const std::string& direccion,
                          const std::vector<std::string>& textos, const OpcionesCampo& opciones,
                          const std::vector<std::string>& rotulos) {
  auto* lista = new ListaSinRueda(pagina_);
  for (std::size_t i = 0; i < textos.size(); ++i)
    lista->addItem(Q(i < rotulos.size() ? rotulos[i] : textos[i]), Q(textos[i]));
  lista->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  QLabel* avisos = nullptr;
  QWidget* caja = ConUnidadYAviso(lista, opciones.unidad, &avisos);
  if (opciones.rotulo.isEmpty())
    formulario->addRow(caja);
  else
    formulario->addRow(opciones.rotulo, caja);
  const std::size_t indice = enlaces_.size();
  Anadir(direccion, opciones, lista, avisos, [lista](const std::string& valor) {
    const QSignalBlocker callado(lista);
    lista->setCurrentIndex(lista->findData(Q(valor)));
  });
  connect(lista, &QComboBox::activated, this, [this, lista, indice](int posicion) {
    Guardar(indice, S(lista->itemData(posicion).toString()));
  });
  return lista;
}

QCheckBox* Enlaces::Casilla(QFormLayout* formulario, const std::string& direccion,
                            const OpcionesCampo& opciones, const std::string& si,
                            const std::string& no) {
  auto* casilla = new QCheckBox(opciones.rotulo, pagina_);
  formulario->addRow(casilla);
  const std::size_t indice = enlaces_.size();
  Anadir(direccion, opciones, casilla, nullptr, [casilla, si](const std::string& valor) {
    const QSignalBlocker callado(casilla);
    casilla->setChecked(valor == si);
  });
  connect(casilla, &QCheckBox::clicked, this,
          [this, indice, si, no](bool marcada) { Guardar(indice, marcada ? si : no); });
  return casilla;
}

void Enlaces::Guardar(std::size_t indice, const std::string& texto) {
  const OpcionesCampo opciones = enlaces_[indice].opciones;
  const std::string direccion = enlaces_[indice].direccion;
  RegistroMensajes avisos;
  contexto_.Editar(
      opciones.rotulo.isEmpty() ? Q(direccion) : opciones.rotulo,
      [&](Edificio& edificio) {
        if (opciones.poner)
          opciones.poner(edificio, texto, avisos);
        else
          PonerCampo(edificio, direccion, texto, avisos);
      },
      opciones.recalcula);
  // La página puede haberse rehecho por la edición.
  if (indice >= enlaces_.size() || enlaces_[indice].direccion != direccion) return;
  Enlace& enlace = enlaces_[indice];
  if (enlace.avisos != nullptr) {
    QStringList textos;
    for (const Mensaje& aviso : avisos.recibidos) textos << Q(aviso.texto);
    enlace.avisos->setText(textos.join('\n'));
    enlace.avisos->setVisible(!avisos.recibidos.empty());
  }
  LectorCampos lector(contexto_.Caso());
  enlace.mostrado = Leer(enlace, lector);
  enlace.ensenar(enlace.mostrado);
}

std::string Enlaces::Leer(const Enlace& enlace, LectorCampos& lector) const {
  if (enlace.opciones.leer) return enlace.opciones.leer(contexto_.Caso());
  return lector.Valor(enlace.direccion).value_or("");
}

void Enlaces::Propio(const std::string& direccion, QWidget* editor, const QString& ayuda) {
  if (editor->toolTip().isEmpty()) editor->setToolTip(ayuda);
  propios_.emplace_back(direccion, editor);
}

void Enlaces::Vaciar() {
  enlaces_.clear();
  propios_.clear();
}

void Enlaces::Refrescar() {
  LectorCampos lector(contexto_.Caso());
  for (Enlace& enlace : enlaces_) {
    const std::string valor = Leer(enlace, lector);
    const auto* linea = qobject_cast<QLineEdit*>(enlace.editor);
    const bool tecleando = linea != nullptr && linea->hasFocus() && linea->isModified();
    if (!tecleando) enlace.ensenar(valor);
    if (valor != enlace.mostrado && enlace.avisos != nullptr) enlace.avisos->hide();
    enlace.mostrado = valor;
    // Un sistema no tiene un valor de partida: se lo da su dimensionado.
    if (!enlace.opciones.leer && !enlace.direccion.starts_with("Tipo_sistema["))
      Marcar(enlace.editor, valor != ValorInicial(enlace.direccion, contexto_.Ficheros()));
  }
}

std::vector<std::string> Enlaces::Direcciones() const {
  std::vector<std::string> direcciones;
  for (const Enlace& enlace : enlaces_)
    if (!enlace.opciones.leer || BuscarDatosCampo(enlace.direccion))
      direcciones.push_back(enlace.direccion);
  for (const auto& propio : propios_) direcciones.push_back(propio.first);
  return direcciones;
}

QWidget* Enlaces::Editor(const std::string& direccion) const {
  for (const Enlace& enlace : enlaces_)
    if (enlace.direccion == direccion) return enlace.editor;
  for (const auto& [suya, editor] : propios_)
    if (suya == direccion) return editor;
  return nullptr;
}

}  // namespace novex::gui
