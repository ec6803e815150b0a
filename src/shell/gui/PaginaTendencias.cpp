#include "shell/gui/PaginaTendencias.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "shell/gui/Filas.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

constexpr std::chrono::milliseconds kRato{10};  // de los 15 ms que puede durar un paso

}  // namespace

PaginaTendencias::PaginaTendencias(ContextoGui& contexto, QWidget* padre)
    : PaginaResultados(contexto, padre), estudio_(contexto.Ficheros()) {
  auto* columna = new QVBoxLayout(this);
  CrearOrdenes(columna);
  pestanas_ = new QTabWidget(this);
  pestanas_->setDocumentMode(true);
  AnadirMedidas(PaginaMedida::Demanda, "Demanda");
  AnadirMedidas(PaginaMedida::CombinacionesDemanda, "Combinaciones demanda");
  AnadirMedidas(PaginaMedida::Equipos, "Equipos");
  AnadirVacia("Combinaciones equipos");
  AnadirVacia("Comb. demanda + equipos");
  notas_ = new NotasMedidas(contexto, this);
  pestanas_->addTab(notas_, "Otros datos de interés");
  lista_ = new ListaMejoras(contexto, this);
  connect(lista_, &ListaMejoras::Marcada, this, &PaginaTendencias::AvisarMarcas);
  pestanas_->addTab(lista_, tr("Por ahorro"));
  columna->addWidget(pestanas_, 1);
  connect(pestanas_, &QTabWidget::currentChanged, this, [this] {
    if (isVisible()) Refrescar();
  });
  reloj_.setInterval(0);
  connect(&reloj_, &QTimer::timeout, this, &PaginaTendencias::Paso);
  // Otro proyecto u otro caso: lo que se mide ya no es lo que se mira.
  connect(&contexto, &ContextoGui::ProyectoCambiado, this, &PaginaTendencias::Parar);
  PonerOrdenes();
}

void PaginaTendencias::CrearOrdenes(QVBoxLayout* columna) {
  auto* fila = new QHBoxLayout;
  const auto boton = [&](const char* nombre, const QString& texto,
                         void (PaginaTendencias::*hacer)()) {
    auto* nuevo = new QPushButton(texto, this);
    nuevo->setObjectName(nombre);
    connect(nuevo, &QPushButton::clicked, this, hacer);
    fila->addWidget(nuevo);
    return nuevo;
  };
  senaladas_ = boton("BBAnalisisPuntual", tr("Calcular las mejoras señaladas (máximo 3)"),
                     &PaginaTendencias::MedirSenaladas);
  todas_ = boton("CalcularTodas", tr("Calcular todas"), &PaginaTendencias::MedirTodas);
  todas_->setToolTip(tr("Mide las %1 medidas y las ordena por lo que ahorran; se puede seguir "
                        "trabajando mientras")
                         .arg(MedidasPredefinidas().size()));
  progreso_ = new QProgressBar(this);
  progreso_->setMaximumWidth(220);
  progreso_->setFormat("%v/%m");
  fila->addWidget(progreso_);
  quedan_ = new QLabel(this);
  quedan_->setObjectName("Quedan");
  fila->addWidget(quedan_);
  cancelar_ = boton("CancelarEstudio", tr("Cancelar"), &PaginaTendencias::Parar);
  fila->addStretch(1);
  marcas_ = new QLabel(this);
  marcas_->setObjectName("Senaladas");
  fila->addWidget(marcas_);
  columna->addLayout(fila);
}

void PaginaTendencias::AnadirMedidas(PaginaMedida pagina, const QString& titulo) {
  auto* sitio = new QWidget(this);
  auto* columna = new QVBoxLayout(sitio);
  columna->setContentsMargins(0, 0, 0, 0);
  hojas_.push_back({pagina, sitio, nullptr});
  pestanas_->addTab(sitio, titulo);
}

// Las medidas de una pestaña son muchos editores: se hacen la primera vez que se ve.
void PaginaTendencias::HacerLaQueSeVe() {
  for (Hoja& hoja : hojas_) {
    if (hoja.sitio != pestanas_->currentWidget() || hoja.medidas != nullptr) continue;
    hoja.medidas = new PestanaMedidas(contexto_, enlaces_, hoja.pagina, hoja.sitio);
    connect(hoja.medidas, &PestanaMedidas::Marcada, this, &PaginaTendencias::AvisarMarcas);
    hoja.sitio->layout()->addWidget(hoja.medidas);
    enlaces_.Refrescar();
  }
}

void PaginaTendencias::AnadirVacia(const QString& titulo) {
  auto* hoja = new QWidget(this);
  auto* columna = new QVBoxLayout(hoja);
  auto* texto = NuevaNota(hoja);
  texto->setText(
      tr("No hay medidas predefinidas en esta página. Para estudiar varias a la vez con "
         "sus equipos, duplique el caso y cambie la mejora."));
  columna->addWidget(texto);
  columna->addStretch(1);
  pestanas_->addTab(hoja, titulo);
}

void PaginaTendencias::Ensenar(const CasoCalculado& caso) {
  const ResultadoMedida base =
      BaseDeEstudio(caso.resultado->resultados, caso.edificio->GetDatosGenerales());
  const MejorasMedidas* medido = estudio_.Medido(caso.nombre, base);
  const auto* medidas = medido == nullptr ? nullptr : &medido->medidas;
  HacerLaQueSeVe();
  for (const Hoja& hoja : hojas_)
    if (hoja.medidas != nullptr) hoja.medidas->Ensenar(base, medidas);
  lista_->Ensenar(base, medidas);
  notas_->Refrescar();
  PonerOrdenes();
}

void PaginaTendencias::AvisarMarcas() {
  if (const auto aviso = AvisoMarcas(contexto_.Caso().GetEstudioModificaciones()))
    contexto_.Sesion().Avisos().Avisar(aviso->titulo, aviso->texto);
}

void PaginaTendencias::MedirSenaladas() {
  const EstudioModificaciones& estudio = contexto_.Caso().GetEstudioModificaciones();
  if (!AvisoMarcas(estudio)) Empezar(CodigosMarcados(estudio), nullptr);
}

void PaginaTendencias::MedirTodas() {
  std::vector<int> codigos;
  for (const MedidaPredefinida& m : MedidasPredefinidas()) codigos.push_back(m.codigo);
  Empezar(std::move(codigos), lista_);
}

void PaginaTendencias::Empezar(std::vector<int> codigos, QWidget* alAcabar) {
  if (!Calculado()) return;
  alAcabar_ = alAcabar;
  estudio_.Empezar(contexto_.Sesion().Gestor(), std::move(codigos));
  reloj_.start();
  PonerOrdenes();
}

void PaginaTendencias::Paso() {
  if (contexto_.Calculando()) return;
  const std::size_t antes = estudio_.Hechos();
  const bool sigue = estudio_.Avanzar(kRato);
  if (sigue && estudio_.Hechos() == antes) return;
  PonerOrdenes();
  if (sigue) return;
  reloj_.stop();
  if (alAcabar_ != nullptr && estudio_.EnQue() == EstudioEnCurso::Estado::Hecho)
    pestanas_->setCurrentWidget(alAcabar_);
  Refrescar();
}

void PaginaTendencias::Parar() {
  reloj_.stop();
  estudio_.Parar();
  PonerOrdenes();
}

void PaginaTendencias::PonerOrdenes() {
  const bool midiendo = estudio_.EnQue() == EstudioEnCurso::Estado::Calculando;
  const bool fallido = estudio_.EnQue() == EstudioEnCurso::Estado::Fallido;
  const EstudioModificaciones& estudio = contexto_.Caso().GetEstudioModificaciones();
  const std::size_t cuantas = CodigosMarcados(estudio).size();
  const bool demasiadas = AvisoMarcas(estudio).has_value();
  senaladas_->setEnabled(!midiendo && cuantas > 0 && !demasiadas);
  todas_->setEnabled(!midiendo);
  progreso_->setVisible(midiendo);
  cancelar_->setVisible(midiendo);
  quedan_->setVisible(midiendo || fallido);
  PonerPapel(quedan_, fallido ? "aviso" : "");
  progreso_->setRange(0, static_cast<int>(estudio_.Pasos()));
  progreso_->setValue(static_cast<int>(estudio_.Hechos()));
  quedan_->setText(Q(fallido ? estudio_.Fallo() : estudio_.Quedan()));
  PonerPapel(marcas_, demasiadas ? "aviso" : "nota");
  marcas_->setText(cuantas == 0 ? tr("Ninguna mejora señalada")
                   : demasiadas ? tr("%1 señaladas: sobran %2").arg(cuantas).arg(cuantas - 3)
                                : tr("Señaladas: %1 de 3").arg(cuantas));
}

}  // namespace novex::gui
