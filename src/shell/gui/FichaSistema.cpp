#include "shell/gui/FichaSistema.h"

#include <QApplication>
#include <QGridLayout>
#include <QPushButton>
#include <algorithm>

#include "entry/CambioSistema.h"
#include "entry/TextosSistema.h"
#include "shell/gui/DialogoCatalogo.h"
#include "shell/gui/DialogoDimensionado.h"
#include "shell/gui/RotulosSistema.h"
#include "shell/gui/TbdEquipos.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

// En qué columna va cada grupo; los últimos, en la que quede más corta, y las bombas debajo, a lo
// ancho.
constexpr GrupoCampos kIzquierda[] = {GrupoCampos::Servicio, GrupoCampos::Generador,
                                      GrupoCampos::Unidades};
constexpr GrupoCampos kDerecha[] = {GrupoCampos::Deposito, GrupoCampos::Control,
                                    GrupoCampos::Emisores};
constexpr GrupoCampos kUltimos[] = {GrupoCampos::Superficies, GrupoCampos::Retorno};
constexpr std::array<const char*, 5> kColumnasBomba = {"Caudal", "Altura", "Rendimiento", "Salto",
                                                       "Control"};
constexpr std::array<const char*, 5> kUnidadesBomba = {"l/h", "m.c.a.", "", "°C", ""};

std::vector<std::string> Textos(ListaTextos lista) {
  return {lista.begin(), lista.end()};
}

QString ModeloDe(const Instalaciones& bloque) {
  if (bloque.Fabricante == kFabricanteDefecto)
    return QObject::tr("Curvas genéricas: %1").arg(Q(bloque.Modelo));
  if (bloque.Modelo.empty()) return QObject::tr("Curvas propias");
  return Q(bloque.Fabricante) + " " + Q(bloque.Modelo);
}

QLabel* Nota(const char* papel, const QString& texto, QWidget* padre) {
  auto* nota = new QLabel(texto, padre);
  nota->setProperty("papel", papel);
  nota->setWordWrap(std::string_view(papel) != "seccion");
  return nota;
}

}  // namespace

FichaSistema::FichaSistema(ContextoGui& contexto, QWidget* padre) : Pagina(contexto, padre) {
  columna_ = new QVBoxLayout(this);
  columna_->setContentsMargins(12, 4, 4, 8);
  CrearCabecera(columna_);
  dibujo_ = new DibujoSistema(this);
  columna_->addWidget(dibujo_);
  notas_ = Nota("nota", {}, this);
  columna_->addWidget(notas_);
  columna_->addStretch(1);
}

void FichaSistema::CrearCabecera(QVBoxLayout* columna) {
  titulo_ = new QLabel(this);
  titulo_->setProperty("papel", "titulo");
  titulo_->setWordWrap(true);
  columna->addWidget(titulo_);
  auto* fila = new QHBoxLayout;
  auto* textos = new QVBoxLayout;
  instalacion_ = Nota("nota", {}, this);
  textos->addWidget(instalacion_);
  reparto_ = Nota("nota", {}, this);
  reparto_->setObjectName("reparto");
  reparto_->setToolTip(
      tr("La carga de cada servicio que le toca al sistema: en calefacción y refrigeración, por su "
         "potencia entre las de todos; en ACS, por la superficie que sirve"));
  modelo_ = new QLabel(this);
  modelo_->setProperty("papel", "nota");
  auto* debajo = new QHBoxLayout;
  debajo->setSpacing(18);
  debajo->addWidget(modelo_);
  debajo->addWidget(reparto_, 1);
  textos->addLayout(debajo);
  fila->addLayout(textos, 1);
  const auto boton = [&](const QString& texto, const QString& ayuda,
                         void (FichaSistema::*hacer)()) {
    auto* b = new QPushButton(texto, this);
    b->setToolTip(ayuda);
    fila->addWidget(b, 0, Qt::AlignTop);
    connect(b, &QPushButton::clicked, this, hacer);
    return b;
  };
  boton(tr("Dimensionar…"), tr("Los tamaños que pide el edificio, para tomar los que convengan"),
        &FichaSistema::Dimensionar);
  catalogo_ = boton(tr("Catálogo…"), tr("Elegir un modelo del catálogo de equipos"),
                    &FichaSistema::Catalogo);
  curvas_ =
      boton(tr("Curvas…"), tr("Las curvas de prestaciones del equipo"), &FichaSistema::Curvas);
  columna->addLayout(fila);
  aviso_ = Nota("aviso", {}, this);
  aviso_->setText(
      tr("La distribución y la alimentación no forman ningún arreglo: elija otra "
         "alimentación. Sin ella el depósito y los captadores no se simulan."));
  columna->addWidget(aviso_);
}

std::string FichaSistema::Direccion(std::string_view etiqueta) const {
  return "Tipo_sistema[" + std::to_string(numero_) + "]/" + std::string(etiqueta);
}

OpcionesCampo FichaSistema::Opciones(std::string_view etiqueta) const {
  OpcionesCampo opciones = OpcionesDeSistema(etiqueta);
  opciones.poner = [this, numero = numero_, etiqueta = std::string(etiqueta)](
                       Edificio& e, std::string_view texto, Mensajes& avisos) {
    const CatalogoEquipos catalogo(contexto_.Ficheros().Xml("Equipos.xml", "EquiposNovex"), avisos);
    PonerCampoSistema(e, numero, etiqueta, texto, &catalogo, avisos);
  };
  return opciones;
}

void FichaSistema::Anadir(QFormLayout* formulario, const CampoMostrado& campo) {
  const std::string direccion = Direccion(campo.etiqueta);
  const OpcionesCampo opciones = Opciones(campo.etiqueta);
  if (campo.valores.empty())
    enlaces_.Linea(formulario, direccion, opciones);
  else
    enlaces_.Lista(formulario, direccion, Textos(campo.valores), opciones, Textos(campo.rotulos));
}

void FichaSistema::AnadirGrupo(QFormLayout* formulario, GrupoCampos grupo,
                               const std::vector<CampoMostrado>& campos) {
  const auto suyo = [grupo](const CampoMostrado& c) { return c.grupo == grupo; };
  if (std::none_of(campos.begin(), campos.end(), suyo)) return;
  formulario->addRow(Nota("seccion", TituloDeGrupo(grupo), contenido_));
  for (const CampoMostrado& campo : campos)
    if (suyo(campo)) Anadir(formulario, campo);
  const auto repartida = [](const CampoMostrado& c) {
    return c.etiqueta == "Sup_Calefaccion" || c.etiqueta == "Sup_Refrigeracion";
  };
  if (grupo == GrupoCampos::Superficies && std::any_of(campos.begin(), campos.end(), repartida))
    formulario->addRow(Nota("nota",
                            tr("El cálculo reparte de nuevo las de calefacción y refrigeración "
                               "entre los sistemas, por su potencia."),
                            contenido_));
}

QWidget* FichaSistema::CajaBombas(const std::vector<CampoMostrado>& campos) {
  std::vector<CampoMostrado> suyos;
  for (const CampoMostrado& c : campos)
    if (c.grupo == GrupoCampos::Bombas) suyos.push_back(c);
  if (suyos.empty()) return nullptr;
  auto* caja = new QWidget(contenido_);
  auto* rejilla = new QGridLayout(caja);
  rejilla->setContentsMargins(0, 0, 0, 0);
  rejilla->setHorizontalSpacing(10);
  rejilla->addWidget(Nota("seccion", TituloDeGrupo(GrupoCampos::Bombas), caja), 0, 0);
  const int columnas = static_cast<int>(kColumnasBomba.size());
  for (int c = 0; c < columnas; ++c) {
    const auto i = static_cast<std::size_t>(c);
    const QString unidad = Q(kUnidadesBomba[i]);
    auto* rotulo =
        new QLabel(tr(kColumnasBomba[i]) + (unidad.isEmpty() ? QString() : ", " + unidad), caja);
    rotulo->setProperty("papel", "nota");
    rejilla->addWidget(rotulo, 0, c + 1, Qt::AlignBottom);
  }
  QLabel* avisos = Nota("aviso", {}, caja);
  avisos->hide();
  // Los campos vienen por circuitos, cada uno con sus cinco.
  for (std::size_t i = 0; i < suyos.size(); ++i) {
    const int fila = 1 + static_cast<int>(i) / columnas, columna = static_cast<int>(i) % columnas;
    if (columna == 0)
      rejilla->addWidget(new QLabel(NombreDeCircuito(suyos[i].etiqueta.substr(6)), caja), fila, 0);
    if (suyos[i].valores.empty()) {
      rejilla->addWidget(
          enlaces_.Celda(Direccion(suyos[i].etiqueta), Opciones(suyos[i].etiqueta), avisos), fila,
          columna + 1);
      continue;
    }
    auto* celda = new QWidget(caja);
    auto* formulario = new QFormLayout(celda);
    formulario->setContentsMargins(0, 0, 0, 0);
    enlaces_.Lista(formulario, Direccion(suyos[i].etiqueta), Textos(suyos[i].valores), [&] {
      OpcionesCampo o = Opciones(suyos[i].etiqueta);
      o.ayuda = o.rotulo + ". " + o.ayuda;
      o.rotulo.clear();
      return o;
    }());
    rejilla->addWidget(celda, fila, columna + 1);
  }
  rejilla->addWidget(avisos, rejilla->rowCount(), 0, 1, columnas + 1);
  rejilla->setColumnStretch(columnas + 1, 1);
  return caja;
}

void FichaSistema::Rehacer(const Firma& firma) {
  const QWidget* foco = QApplication::focusWidget();
  const std::string enfocado =
      foco != nullptr && isAncestorOf(foco) ? S(foco->objectName()) : std::string();
  for (const std::string& direccion : enlaces_.Direcciones())
    disconnect(enlaces_.Editor(direccion), nullptr, &enlaces_, nullptr);
  enlaces_.Vaciar();
  if (contenido_ != nullptr) {
    // Lo que se quita puede ser lo que ha pedido el cambio: se borra al acabar de atenderlo.
    contenido_->hide();
    columna_->removeWidget(contenido_);
    contenido_->setParent(nullptr);
    contenido_->deleteLater();
  }
  firma_ = firma;
  contenido_ = new QWidget(this);
  contenido_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Minimum);
  auto* todo = new QVBoxLayout(contenido_);
  todo->setContentsMargins(0, 0, 0, 0);
  auto* fila = new QHBoxLayout;
  fila->setSpacing(16);
  std::array<QFormLayout*, 2> columnas{};
  for (QFormLayout*& formulario : columnas) {
    formulario = new QFormLayout;
    formulario->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    formulario->setVerticalSpacing(4);
    fila->addLayout(formulario, 1);
  }
  for (const GrupoCampos g : kIzquierda) AnadirGrupo(columnas[0], g, firma.campos);
  for (const GrupoCampos g : kDerecha) AnadirGrupo(columnas[1], g, firma.campos);
  for (const GrupoCampos g : kUltimos) {
    const bool derecha = columnas[1]->rowCount() < columnas[0]->rowCount();
    AnadirGrupo(columnas[derecha ? 1 : 0], g, firma.campos);
  }
  todo->addLayout(fila);
  if (QWidget* bombas = CajaBombas(firma.campos)) todo->addWidget(bombas);
  columna_->insertWidget(columna_->indexOf(notas_), contenido_);
  if (QWidget* editor = enlaces_.Editor(enfocado)) editor->setFocus();
}

void FichaSistema::Poner(std::size_t numero) {
  numero_ = numero;
  Refrescar();
}

void FichaSistema::Refrescar() {
  const Edificio& e = contexto_.Caso();
  const auto lugar = LugarDeBloque(e, numero_);
  if (!lugar) return;
  const SistemaResidencial& sistema = e.GetSistema(lugar->sistema);
  const Instalaciones& bloque = sistema.instalaciones[lugar->bloque];
  const Firma firma{numero_, CamposMostrados(e, sistema, bloque)};
  if (!(firma == firma_)) Rehacer(firma);
  PonerCabecera(sistema, bloque);
  reparto_->setText(Q(TextoReparto(e, lugar->sistema)));
  dibujo_->Poner(sistema, bloque);
  enlaces_.Refrescar();
}

void FichaSistema::PonerCabecera(const SistemaResidencial& sistema, const Instalaciones& bloque) {
  titulo_->setText(Q(EtiquetaSistema(sistema)));
  instalacion_->setText(
      Q(EtiquetaInstalacion(contexto_.Caso().GetDatosGenerales(), bloque.TipoInstalacionesG)));
  const bool conModelo = !TipoDeCatalogo(bloque.Seleccion).familia.empty();
  modelo_->setText(conModelo ? ModeloDe(bloque) : QString());
  modelo_->setVisible(conModelo);
  catalogo_->setVisible(conModelo);
  curvas_->setVisible(conModelo);
  aviso_->setVisible(ArregloSinDefinir(sistema, bloque));
  QString notas;
  for (const std::string_view nota : NotasSistema(contexto_.Caso(), sistema))
    notas += (notas.isEmpty() || nota.starts_with(" ") ? "" : "\n") + Q(nota);
  notas_->setText(notas);
  notas_->setVisible(!notas.isEmpty());
}

void FichaSistema::Renombrar() {
  if (auto* nombre = qobject_cast<QLineEdit*>(enlaces_.Editor(Direccion("Nombre_sistema")))) {
    nombre->setFocus();
    nombre->selectAll();
  }
}

void FichaSistema::Dimensionar() {
  DialogoDimensionado(contexto_, numero_, this).exec();
}

void FichaSistema::Catalogo() {
  DialogoCatalogo(contexto_, numero_, this).exec();
}

void FichaSistema::Curvas() {
  TbdEquipos(contexto_, numero_, this).exec();
}

}  // namespace novex::gui
