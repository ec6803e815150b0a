// El aire y su recuperador, que tienen unos datos en vivienda y otros en terciario.
#include <QListView>
#include <QStandardItemModel>

#include "entry/ReglasVentilacion.h"
#include "shell/gui/Filas.h"
#include "shell/gui/PaginaUso.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

bool Residencial(const AjustesUso& a) {
  return a.residencial;
}
bool Terciario(const AjustesUso& a) {
  return !a.residencial;
}
bool Mecanica(const AjustesUso& a) {
  return a.residencial && a.vivienda != VentilacionVivienda::Hibrida;
}
bool Toma(const AjustesUso& a) {
  return !a.residencial && a.aire == SistemaAire::Toma;
}
bool ConUTA(const AjustesUso& a) {
  return !a.residencial && a.aire != SistemaAire::Toma;
}
bool TodoAire(const AjustesUso& a) {
  return !a.residencial && a.aire == SistemaAire::UTA;
}
bool Enfriamiento(const AjustesUso& a) {
  return ConUTA(a) && a.ConEnfriamiento();
}
bool Humectador(const AjustesUso& a) {
  return ConUTA(a) && a.hayHumectador;
}
bool ConVentilador(const AjustesUso& a) {
  return Mecanica(a) || ConUTA(a);
}
bool ConRecuperador(const AjustesUso& a) {
  return ConVentilador(a) && a.recuperador != TipoRecuperador::No;
}
bool ConBypass(const AjustesUso& a) {
  return ConVentilador(a) && (a.recuperador == TipoRecuperador::SensibleCon ||
                              a.recuperador == TipoRecuperador::EntalpicoCon);
}
bool Entalpico(const AjustesUso& a) {
  return ConUTA(a) && (a.recuperador == TipoRecuperador::EntalpicoSin ||
                       a.recuperador == TipoRecuperador::EntalpicoCon);
}
bool RecuperadorDeUTA(const AjustesUso& a) {
  return ConUTA(a) && ConRecuperador(a);
}

}  // namespace

QWidget* PaginaUso::CajaAire() {
  const auto [caja, filas] = NuevaCaja(tr("Sistema de aire"), this);
  FilasVivienda(filas);
  FilasToma(filas);
  FilasUTA(filas);
  FilasRecuperador(filas);
  return caja;
}

void PaginaUso::FilasVivienda(QFormLayout* filas) {
  Solo(filas,
       enlaces_.Lista(filas, "TipoVentilacion2", {"Mecanica", "Hibrida"},
                      Opciones(tr("Ventilación de la vivienda"),
                               tr("La híbrida no gasta en ventiladores ni recupera calor")),
                      {"Mecánica", "Híbrida"}),
       Residencial);
  Solo(filas,
       enlaces_.Lista(filas, "ManejoVentanas2", {"Abiertas", "Cerradas"},
                      Opciones(tr("Ventanas en las noches de verano"),
                               tr("Abiertas dan 4 renovaciones por hora")),
                      {}),
       Residencial);
}

void PaginaUso::FilasToma(QFormLayout* filas) {
  Solo(filas,
       enlaces_.Lista(
           filas, "ManejoVentilacion",
           {"TomaUT", "UTAprimario_a_unid_terminales", "UTAprimario_Ventilacion_indep.", "UTA"},
           Opciones(tr("Manejo del aire"), tr("Por dónde entra el aire exterior")),
           {"Toma en cada unidad terminal /equipo conductos",
            "UTAprimario (aire exterior). A unidades terminales",
            "UTAprimario (aire exterior). Ventilación independ.", "UTA (Sistema todo aire)"}),
       Terciario);
  Solo(filas,
       enlaces_.Linea(filas, "Ventilacion", Opciones(tr("Caudal nominal"), tr("De aire exterior"))),
       Toma);
  Solo(filas,
       enlaces_.Linea(filas, "PerdPresionToma",
                      Opciones(tr("Pérdida de presión"), tr("De los ventiladores de las tomas"))),
       Toma);
  Solo(filas, enlaces_.Linea(filas, "RendVentToma", Opciones(tr("Rendimiento del ventilador"))),
       Toma);
}

void PaginaUso::FilasUTA(QFormLayout* filas) {
  OpcionesCampo modulacion =
      Opciones(tr("Modulación del aire"), tr("Cómo cambia el caudal de aire exterior con la hora"));
  modulacion.poner = [](Edificio& e, std::string_view texto, Mensajes& mensajes) {
    PonerModulacionAire(e, texto, mensajes);
  };
  Solo(filas,
       enlaces_.Lista(filas, "TipoCO2",
                      {"Coef. operacionales", "Coef. operacionales + freecooling",
                       "Proporcional al nº personas (sonda CO2)", "SondaCO2 con freecooling"},
                      modulacion),
       ConUTA);
  Solo(filas,
       enlaces_.Lista(filas, "ControlVent", {"Variador de frecuencia", "Control por compuertas"},
                      Opciones(tr("Control del ventilador"), tr("Da su consumo a carga parcial"))),
       ConUTA);
  Solo(filas,
       enlaces_.Linea(filas, "CaudalUTA",
                      Opciones(tr("Caudal de la UTA"), tr("Nominal, de impulsión"))),
       TodoAire);
  Solo(filas,
       enlaces_.Lista(filas, "UTAFreeCooling", {"FreeCoolingTermico", "FreeCoolingEntalpico"},
                      Opciones(tr("Enfriamiento gratuito"), tr("Qué se compara con el exterior")),
                      {"Térmico", "Entálpico"}),
       Enfriamiento);
  Solo(filas,
       enlaces_.Linea(filas, "TminImp",
                      Opciones(tr("Impulsión mínima"), tr("En enfriamiento gratuito"))),
       Enfriamiento);
  Solo(filas,
       enlaces_.Linea(filas, "TminFreeCooling",
                      Opciones(tr("Exterior mínimo"), tr("Para el enfriamiento gratuito"))),
       Enfriamiento);
  Solo(filas,
       enlaces_.Lista(filas, "UTAHumectacion", {"HumectadorNo", "HumectadorSi"},
                      Opciones(tr("Humectador")), {"No", "Sí"}),
       ConUTA);
  Solo(filas,
       enlaces_.Linea(filas, "HRmin",
                      Opciones(tr("Humedad mínima"), tr("La que mantiene el humectador"))),
       Humectador);
  Solo(filas, enlaces_.Linea(filas, "NEquiposVent", Opciones(tr("Número de equipos"))), ConUTA);
}

void PaginaUso::FilasRecuperador(QFormLayout* filas) {
  Solo(filas,
       enlaces_.Lista(filas, "Recuperador",
                      {"No", "SensibleSinBypass", "SensibleConBypass", "EntalpicoSinBypass",
                       "EntalpicoConBypass"},
                      Opciones(tr("Recuperador de calor")),
                      {"No", "Sensible sin by-pass", "Sensible con by-pass",
                       "Entálpico sin by-pass", "Entálpico con by-pass"}),
       ConVentilador);
  Solo(filas, enlaces_.Linea(filas, "Eficiencia_recuperador", Opciones(tr("Eficiencia sensible"))),
       ConRecuperador);
  Solo(filas,
       enlaces_.Linea(filas, "Eficiencia_recuperador_Ental", Opciones(tr("Eficiencia de humedad"))),
       Entalpico);
  Solo(filas,
       enlaces_.Linea(
           filas, "ERelaMasa",
           Opciones(tr("Relación de masas"), tr("Aire de menor caudal partido por el mayor"))),
       RecuperadorDeUTA);
  Solo(filas,
       enlaces_.Linea(filas, "WRecuperador",
                      Opciones(tr("Potencia de los ventiladores"),
                               tr("En vivienda, de cada una; en terciario, a caudal nominal"))),
       ConVentilador);
  Solo(filas,
       enlaces_.Linea(filas, "WRecuperadorr",
                      Opciones(tr("Potencia con by-pass"), tr("De los ventiladores, sin pasar por "
                                                              "el recuperador"))),
       ConBypass);
  Solo(filas,
       enlaces_.Linea(filas, "Teminrec",
                      Opciones(tr("By-pass desde"), tr("Temperatura exterior en que empieza"))),
       ConBypass);
  Solo(filas,
       enlaces_.Linea(filas, "Temaxrec",
                      Opciones(tr("By-pass hasta"), tr("Temperatura exterior en que acaba"))),
       ConBypass);
  notaRecuperador_ = NuevaNota(this);
  notaRecuperador_->setText(
      tr("Estos equipos deben cumplir el reglamento UE 1253/2014 y a partir del 1 Enero de 2018") +
      tr(" la potencia específica (W/m3/s) debe ser menor del valor "
         "1100+(EFIt-0,73)*3000-300*q/2"));
  filas->addRow(notaRecuperador_);
  Solo(filas, notaRecuperador_, ConRecuperador);
}

void PaginaUso::OfrecerRecuperadores(bool residencial) {
  auto* lista = qobject_cast<QComboBox*>(enlaces_.Editor("Recuperador"));
  auto* vista = qobject_cast<QListView*>(lista->view());
  auto* modelo = qobject_cast<QStandardItemModel*>(lista->model());
  for (int i = 0; i < lista->count(); ++i) {
    const bool cabe = !residencial || !lista->itemData(i).toString().startsWith("Entalpico");
    vista->setRowHidden(i, !cabe);
    modelo->item(i)->setEnabled(cabe);
  }
}

}  // namespace novex::gui
