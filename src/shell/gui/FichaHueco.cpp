#include "shell/gui/FichaHueco.h"

#include "base/NumeroTexto.h"
#include "entry/GruposHuecos.h"
#include "model/ListasHuecos.h"
#include "shell/gui/CajaTitulo.h"
#include "shell/gui/DialogoColumna.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

constexpr std::array<std::size_t, 7> kColumnas = {norte,    oeste, sur_oeste,         sur,
                                                  sur_este, este,  kColumnaHorizontal};

std::vector<std::string> Textos(std::span<const std::string_view> lista) {
  return {lista.begin(), lista.end()};
}

std::vector<std::string> Numeros(std::size_t cuantos) {
  std::vector<std::string> numeros;
  for (std::size_t i = 0; i < cuantos; ++i) numeros.push_back(std::to_string(i));
  return numeros;
}

// Una lista de textos largos no ha de ensanchar la página, pero toma el sitio que haya.
void Estrechar(QComboBox* lista) {
  lista->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  lista->setMinimumContentsLength(20);
  lista->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  for (auto* fila : lista->parentWidget()->findChildren<QHBoxLayout*>())
    if (fila->indexOf(lista) >= 0) fila->setStretchFactor(lista, 100);
}

QFormLayout* Formulario() {
  auto* formulario = new QFormLayout;
  formulario->setVerticalSpacing(4);
  formulario->setContentsMargins(0, 0, 0, 0);
  return formulario;
}

}  // namespace

FichaHueco::FichaHueco(ContextoGui& contexto, Enlaces& enlaces, const CatalogoVidrios& catalogo,
                       std::size_t grupo, QWidget* padre)
    : QWidget(padre), contexto_(contexto), enlaces_(enlaces), catalogo_(catalogo), grupo_(grupo) {
  auto* filas = new QVBoxLayout(this);
  filas->setContentsMargins(8, 0, 0, 0);
  filas->setSpacing(4);
  filas->addWidget(Cabecera());
  filas->addWidget(CajaUnidades());
  auto* tres = new QHBoxLayout;
  tres->setSpacing(20);
  const auto columna = [&](std::initializer_list<QWidget*> cajas, int peso) {
    auto* pila = new QVBoxLayout;
    pila->setSpacing(2);
    for (QWidget* caja : cajas) pila->addWidget(caja);
    tres->addLayout(pila, peso);
    return pila;
  };
  seccion_ = new SeccionHueco(this);
  columna({CajaMedidas(), seccion_}, 3)->setStretch(1, 1);
  columna({CajaVidrio(), CajaMarco(), CajaPermeabilidad()}, 4)->addStretch(1);
  columna({CajaProteccion(), CajaPersiana(), CajaMultiplicadores()}, 4)->addStretch(1);
  filas->addLayout(tres, 1);
}

std::string FichaHueco::Direccion(std::string_view etiqueta) const {
  return "Hueco[" + std::to_string(grupo_ + 1) + "]/" + std::string(etiqueta);
}

QLineEdit* FichaHueco::Linea(QFormLayout* formulario, const char* etiqueta, const QString& rotulo,
                             const QString& ayuda) {
  OpcionesCampo opciones;
  opciones.rotulo = rotulo;
  opciones.ayuda = ayuda;
  return enlaces_.Linea(formulario, Direccion(etiqueta), opciones);
}

QComboBox* FichaHueco::Posiciones(QFormLayout* formulario, const char* etiqueta,
                                  const QString& rotulo, std::span<const std::string_view> textos,
                                  OpcionesCampo opciones) {
  opciones.rotulo = rotulo;
  QComboBox* lista = enlaces_.Lista(formulario, Direccion(etiqueta), Numeros(textos.size()),
                                    opciones, Textos(textos));
  Estrechar(lista);
  lista->setPlaceholderText(tr("Otro"));
  return lista;
}

QWidget* FichaHueco::Cabecera() {
  auto* caja = new QWidget(this);
  auto* fila = new QHBoxLayout(caja);
  fila->setContentsMargins(0, 0, 0, 0);
  OpcionesCampo nombre;
  nombre.rotulo = tr("Nombre del grupo");
  nombre.poner = [n = grupo_](Edificio& e, std::string_view texto, Mensajes&) {
    RenombrarGrupoHuecos(e, n, texto);
  };
  QLineEdit* editor = enlaces_.Celda(Direccion("Nombre_hueco"), nombre);
  editor->setMinimumWidth(150);
  editor->setMaximumWidth(240);
  fila->addWidget(editor);
  auto* formulario = new QFormLayout;
  formulario->setContentsMargins(8, 0, 0, 0);
  enlaces_.Lista(formulario, Direccion("Tipo_de_hueco"), Textos(listaHuecos::kTipos),
                 {tr("Tipo"),
                  {},
                  tr("Un lucernario va inclinado u horizontal, y los obstáculos no le dan sombra"),
                  {},
                  {}});
  fila->addLayout(formulario);
  auto* reh = new QFormLayout;
  enlaces_.Casilla(
      reh, Direccion("HuecoReh"),
      {tr("Se reforma"), {}, tr("La reforma trata el hueco y ha de cumplir sus límites"), {}, {}});
  fila->addLayout(reh);
  fila->addStretch(1);
  cifras_ = new QLabel(caja);
  cifras_->setObjectName("cifrasHueco");
  cifras_->setTextFormat(Qt::RichText);
  cifras_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  cifras_->setToolTip(
      tr("U del hueco con el borde del vidrio y la caja de persiana (UNE-EN ISO 10077-1), factor "
         "solar del vidrio y el marco (CTE DA DB-HE/1) y el mismo con la protección móvil echada"));
  fila->addWidget(cifras_);
  return caja;
}

QWidget* FichaHueco::CajaUnidades() {
  auto* rejilla = new QGridLayout;
  rejilla->setContentsMargins(0, 0, 0, 0);
  rejilla->setVerticalSpacing(2);
  avisoUnidades_ = new QLabel(this);
  avisoUnidades_->setProperty("papel", "aviso");
  avisoUnidades_->hide();
  for (std::size_t i = 0; i < kColumnas.size(); ++i) {
    Columna& c = columnas_[i];
    const int x = static_cast<int>(i);
    c.indice = kColumnas[i];
    const bool horizontal = c.indice == kColumnaHorizontal;
    c.rotulo = new QLabel(this);
    rejilla->addWidget(c.rotulo, 0, x);
    rejilla->setColumnStretch(x, 1);
    OpcionesCampo opciones;
    opciones.rotulo = tr("Huecos, %1").arg(NombreDeSector(c.indice).toLower());
    rejilla->addWidget(
        enlaces_.Celda(
            Direccion(horizontal ? std::string("Numero_lucernarios_Hz")
                                 : "Numero_ventanas_" + std::string(kNombreSector[c.indice])),
            opciones, avisoUnidades_),
        1, x, Qt::AlignLeft);
    c.area = new QLabel(this);
    c.area->setProperty("papel", "nota");
    rejilla->addWidget(c.area, 2, x);
    if (DireccionesDeColumna(c.indice).cuantas == 0) continue;
    c.asignar = new QPushButton(this);
    c.asignar->setObjectName(QString("asignar_%1").arg(Q(kNombreSector[c.indice])));
    connect(c.asignar, &QPushButton::clicked, this, [this, sector = static_cast<Sector>(c.indice)] {
      DialogoColumna(contexto_, grupo_, sector, this).exec();
    });
    rejilla->addWidget(c.asignar, 3, x, Qt::AlignLeft);
  }
  rejilla->addWidget(avisoUnidades_, 4, 0, 1, static_cast<int>(kColumnas.size()));
  return CajaTitulo(this, tr("Unidades por orientación"), rejilla);
}

QWidget* FichaHueco::CajaMedidas() {
  medidas_ = Formulario();
  Linea(medidas_, "Ancho_m", tr("Ancho"), tr("De un hueco, con su marco"));
  Linea(medidas_, "Alto_m", tr("Alto"), tr("De un hueco, con su marco"));
  Linea(medidas_, "Retranqueo_m", tr("Retranqueo"), tr("Fondo desde la cara exterior del muro"));
  Linea(medidas_, "Distancia_alero_m", tr("Distancia del alero"),
        tr("Del borde superior del hueco al alero"));
  Linea(medidas_, "Longitud_alero_m", tr("Longitud del alero"), tr("Cuánto vuela"));
  return CajaTitulo(this, tr("Medidas"), medidas_);
}

QWidget* FichaHueco::CajaVidrio() {
  vidrio_ = Formulario();
  OpcionesCampo tipo, concreto;
  tipo.ayuda = tr("Al elegirlo se pone el primer vidrio de su clase");
  tipo.poner = [this, n = grupo_](Edificio& e, std::string_view texto, Mensajes&) {
    const int clase = static_cast<int>(EnteroInicial(texto));
    Huecos& g = e.GetHuecos(n);
    const VidrioElegido propio{clase, 0, g.U_cristal_W_m2K, g.FS_cristal_tanto_por_uno};
    PonerVidrio(g, VidrioDeCatalogo(catalogo_, g, clase, 0).value_or(propio));
  };
  Posiciones(vidrio_, "Indice_tipo_cristal", tr("Clase"), listaHuecos::kCristales, tipo);
  concreto.ayuda = tr("Pone su U, en la inclinación del hueco, y su factor solar");
  concreto.poner = [this, n = grupo_](Edificio& e, std::string_view texto, Mensajes&) {
    Huecos& g = e.GetHuecos(n);
    const auto elegido = VidrioDeCatalogo(catalogo_, g, g.Indice_tipo_cristal,
                                          static_cast<int>(EnteroInicial(texto)));
    if (elegido) PonerVidrio(g, *elegido);
  };
  vidrioConcreto_ = Posiciones(vidrio_, "Indice_cristal_concreto", tr("Vidrio"), {}, concreto);
  Linea(vidrio_, "U_cristal_W_m2K", tr("U"), tr("Transmitancia del vidrio"));
  Linea(vidrio_, "FS_cristal_tanto_por_uno", tr("Factor solar"),
        tr("Del vidrio a incidencia normal, tanto por uno (UNE-EN 410)"));
  notaVidrio_ = new QLabel(this);
  notaVidrio_->setObjectName("notaVidrio");
  notaVidrio_->setProperty("papel", "nota");
  notaVidrio_->setWordWrap(true);
  connect(notaVidrio_, &QLabel::linkActivated, this, &FichaHueco::PonerDelCatalogo);
  vidrio_->addRow(notaVidrio_);
  return CajaTitulo(this, tr("Vidrio"), vidrio_);
}

QWidget* FichaHueco::CajaMarco() {
  marco_ = Formulario();
  OpcionesCampo tipo;
  tipo.ayuda = tr("Pone su U, en la inclinación del hueco");
  tipo.poner = [this, n = grupo_](Edificio& e, std::string_view texto, Mensajes&) {
    const int clase = static_cast<int>(EnteroInicial(texto));
    Huecos& g = e.GetHuecos(n);
    const MarcoElegido propio{clase, g.U_marco_W_m2K};
    PonerMarco(g, MarcoDeCatalogo(catalogo_, g, clase, 0).value_or(propio));
  };
  Posiciones(marco_, "Indice_marco", tr("Clase"), listaHuecos::kMarcos, tipo);
  marcoConcreto_ = new QComboBox(this);
  marcoConcreto_->setObjectName("marcoConcreto");
  marcoConcreto_->setFocusPolicy(Qt::StrongFocus);
  marcoConcreto_->setPlaceholderText(tr("Con la U dada"));
  Estrechar(marcoConcreto_);
  connect(marcoConcreto_, &QComboBox::activated, this, &FichaHueco::ElegirMarco);
  marco_->addRow(tr("Marco"), marcoConcreto_);
  Linea(marco_, "U_marco_W_m2K", tr("U"), tr("Transmitancia del marco"));
  Linea(marco_, "Fraccion_marco_tanto_por_cien", tr("Fracción"),
        tr("Parte del hueco que es marco"));
  return CajaTitulo(this, tr("Marco"), marco_);
}

QWidget* FichaHueco::CajaPermeabilidad() {
  QFormLayout* formulario = Formulario();
  std::vector<std::string> posiciones, rotulos;
  for (std::size_t i = 0; i < catalogo_.permeabilidades.size(); ++i) {
    posiciones.push_back(std::to_string(i));
    rotulos.push_back(catalogo_.permeabilidades[i].nombre);
  }
  OpcionesCampo clase;
  clase.rotulo = tr("Clase");
  clase.ayuda = tr("De la carpintería (UNE-EN 12207); pone su permeabilidad");
  clase.poner = [this, n = grupo_](Edificio& e, std::string_view texto, Mensajes&) {
    const auto i = static_cast<std::size_t>(EnteroInicial(texto));
    PonerPermeabilidad(e.GetHuecos(n), catalogo_.permeabilidades.at(i));
  };
  // Manda la permeabilidad, que es lo que cuenta: la clase se conoce por ella.
  clase.leer = [this, n = grupo_](const Edificio& e) -> std::string {
    const auto& clases = catalogo_.permeabilidades;
    const float C100 = n < e.NumeroHuecos() ? e.GetHuecos(n).Permeabilidad_Ventanas : 0;
    for (std::size_t i = 0; i < clases.size(); ++i)
      if (clases[i].C100 == C100) return std::to_string(i);
    return {};
  };
  QComboBox* lista =
      enlaces_.Lista(formulario, Direccion("Indice_tipo_junta"), posiciones, clase, rotulos);
  Estrechar(lista);
  lista->setPlaceholderText(tr("Con el valor dado"));
  Linea(formulario, "Permeabilidad_Ventanas", tr("A 100 Pa"), tr("Por m2 de hueco"));
  return CajaTitulo(this, tr("Permeabilidad al aire"), formulario);
}

QWidget* FichaHueco::CajaProteccion() {
  proteccion_ = Formulario();
  OpcionesCampo fija, movil, verano, invierno;
  fija.ayuda = tr("Lamas fijas delante del hueco");
  movil.ayuda = tr("Lo que se echa para quitar el sol o de noche");
  verano.ayuda = tr("Qué parte del hueco se protege de 9 a 19 h y con cuánto sol en la fachada");
  invierno.ayuda = tr("Qué parte del hueco se cierra sin sol");
  Posiciones(proteccion_, "Indice_tipo_sombra_fija", tr("Fija"), listaHuecos::kSombrasFijas, fija);
  Posiciones(proteccion_, "Indice_tipo_sombra_movil", tr("Móvil"), listaHuecos::kSombrasMoviles,
             movil);
  Posiciones(proteccion_, "Indice_tipo_control_Verano", tr("En verano"),
             listaHuecos::kControlesVerano, verano);
  Posiciones(proteccion_, "Indice_tipo_control_Invierno", tr("En invierno"),
             listaHuecos::kControlesInvierno, invierno);
  return CajaTitulo(this, tr("Protección solar"), proteccion_);
}

QWidget* FichaHueco::CajaPersiana() {
  persiana_ = Formulario();
  const auto lista = [this](const char* etiqueta, const QString& rotulo,
                            std::span<const std::string_view> textos) {
    OpcionesCampo opciones;
    opciones.rotulo = rotulo;
    Estrechar(enlaces_.Lista(persiana_, Direccion(etiqueta), Textos(textos), opciones));
  };
  lista("Existe_Caja_persiana", tr("Caja"), listaHuecos::kExisteCaja);
  lista("Tipo_de_U_Caja_persiana", tr("Aislamiento"), listaHuecos::kUCaja);
  Linea(persiana_, "U_Caja_de_persiana_W_m2K", tr("U"));
  lista("Tipo_de_Vinf_Caja_persiana", tr("Rendija"), listaHuecos::kInfiltracionCaja);
  Linea(persiana_, "Vinf_Caja_de_persiana_m3_h", tr("Infiltración"),
        tr("A 100 Pa, por metro de su borde"));
  Linea(persiana_, "Altura_Caja_de_persiana_m", tr("Altura"));
  notaPersiana_ = new QLabel(tr("Falta la U de la caja: sin ella no pierde calor."), this);
  notaPersiana_->setProperty("papel", "aviso");
  notaPersiana_->setWordWrap(true);
  persiana_->addRow(notaPersiana_);
  return CajaTitulo(this, tr("Caja de persiana"), persiana_);
}

QWidget* FichaHueco::CajaMultiplicadores() {
  auto* rejilla = new QGridLayout;
  rejilla->setContentsMargins(0, 0, 0, 0);
  auto* avisos = new QLabel(this);
  avisos->setProperty("papel", "aviso");
  avisos->hide();
  rejilla->addWidget(new QLabel(tr("Verano"), this), 0, 1);
  rejilla->addWidget(new QLabel(tr("Invierno"), this), 0, 2);
  const auto fila = [&](int y, const QString& rotulo, const char* enVerano,
                        const char* enInvierno) {
    rejilla->addWidget(new QLabel(rotulo, this), y, 0);
    OpcionesCampo verano, invierno;
    verano.rotulo = tr("%1, verano").arg(rotulo);
    invierno.rotulo = tr("%1, invierno").arg(rotulo);
    rejilla->addWidget(enlaces_.Celda(Direccion(enVerano), verano, avisos), y, 1, Qt::AlignLeft);
    rejilla->addWidget(enlaces_.Celda(Direccion(enInvierno), invierno, avisos), y, 2,
                       Qt::AlignLeft);
  };
  fila(1, tr("Factor solar"), "Valor_multiplicativo_FS_verano", "Valor_multiplicativo_FS_invierno");
  fila(2, tr("U"), "Valor_multiplicativo_U_verano", "Valor_multiplicativo_U_invierno");
  rejilla->addWidget(avisos, 3, 0, 1, 3);
  rejilla->setColumnStretch(2, 1);
  return CajaTitulo(this, tr("Multiplicadores"), rejilla);
}

void FichaHueco::PonerDelCatalogo() {
  contexto_.Editar(tr("Vidrio del catálogo"), [this](Edificio& e) {
    Huecos& g = e.GetHuecos(grupo_);
    const auto vidrio =
        VidrioDeCatalogo(catalogo_, g, g.Indice_tipo_cristal, g.Indice_cristal_concreto);
    if (vidrio) PonerVidrio(g, *vidrio);
  });
}

void FichaHueco::ElegirMarco(int posicion) {
  contexto_.Editar(tr("Marco"), [&](Edificio& e) {
    Huecos& g = e.GetHuecos(grupo_);
    const auto marco = MarcoDeCatalogo(catalogo_, g, g.Indice_marco, posicion);
    if (marco) PonerMarco(g, *marco);
  });
}

}  // namespace novex::gui
