#include "files/texto/LugaresAntiguos.h"

#include <array>
#include <span>

namespace novex {
namespace {

// Las listas con que se elegía el lugar, con sus erratas: son posiciones de un fichero. La última
// de cada provincia, "Otra", es cualquier otro municipio.
using Ciudades = std::span<const std::string_view>;

// A Coruña
constexpr std::array<std::string_view, 9> kCiudades0 = {
    "Arteixo", "Carballo", "Coruña (A)", "Ferrol",
    "Narón",   "Oleiros",  "Riveira",    "Santiago de Compostela",
    "Otra"};
// Álava
constexpr std::array<std::string_view, 2> kCiudades1 = {"Vitoria-Gasteiz", "Otra"};
// Albacete
constexpr std::array<std::string_view, 5> kCiudades2 = {"Albacete", "Almansa", "Hellín",
                                                        "Villarrobledo", "Otra"};
// Alicante/Alacant
constexpr std::array<std::string_view, 17> kCiudades3 = {
    "Alcoy/Alcoi",
    "Alicante/Alacant",
    "Benidorm",
    "Crevillent",
    "Dénia",
    "Elche/Elx",
    "Elda",
    "Ibi",
    "Jávea/Xàbia",
    "Novelda",
    "Orihuela",
    "Petrer",
    "San Vicente del Raspeig/Sant Vicent del Raspeig",
    "Torrevieja",
    "Villajoyosa",
    "Villena",
    "Otra"};
// Almería
constexpr std::array<std::string_view, 5> kCiudades4 = {"Adra", "Almería", "Ejido (El)",
                                                        "Roquetas del mar", "Otra"};
// Asturias
constexpr std::array<std::string_view, 9> kCiudades5 = {
    "Avilés", "Castrillón", "Gijón", "Langreo", "Mieres", "Oviedo", "San Martín del Rey Aurelio",
    "Siero",  "Otra"};
// Ávila
constexpr std::array<std::string_view, 2> kCiudades6 = {"Ávila", "Otra"};
// Badajoz
constexpr std::array<std::string_view, 6> kCiudades7 = {
    "Almendralejo", "Badajoz", "Don Benito", "Mérida", "Villanueva de la Serena", "Otra"};
// Barcelona
constexpr std::array<std::string_view, 34> kCiudades8 = {"Badalona",
                                                         "Barberà del Vallès",
                                                         "Barcelona",
                                                         "Castelldefels",
                                                         "Cerdanyola del Vallès",
                                                         "Cornellà de Llobregat",
                                                         "Gavà",
                                                         "Granollers",
                                                         "Hospitalet de Llobregat (L')",
                                                         "Cabrera d'igualada",
                                                         "Manresa",
                                                         "Masnou (El)",
                                                         "Mataró",
                                                         "Mollet del Vallès",
                                                         "Montcada i Reixac",
                                                         "Prat de Llobregat (El)",
                                                         "Premià de Mar",
                                                         "Ripollet",
                                                         "Rubí",
                                                         "Sabadell",
                                                         "Sant Adrià de Besòs",
                                                         "Sant Boi de Llobregat",
                                                         "Sant Cugat del Vallès",
                                                         "Sant Feliu de Llobregat",
                                                         "Sant Joan Despí",
                                                         "Sant Pere de Ribes",
                                                         "Sant Vicenç dels Horts",
                                                         "Santa Coloma de Gramenet",
                                                         "Terrassa",
                                                         "Vic",
                                                         "Viladecans",
                                                         "Vilafranca del Penedès",
                                                         "Vilanova i la Geltrú",
                                                         "Otra"};
// Burgos
constexpr std::array<std::string_view, 4> kCiudades9 = {"Aranda de Duero", "Burgos",
                                                        "Miranda de Ebro", "Otra"};
// Cáceres
constexpr std::array<std::string_view, 3> kCiudades10 = {"Cáceres", "Plasencia", "Otra"};
// Cádiz
constexpr std::array<std::string_view, 14> kCiudades11 = {"Algeciras",
                                                          "Arcos de la Frontera",
                                                          "Barbate",
                                                          "Cádiz",
                                                          "Chiclana de la Frontera",
                                                          "Jerez de la Frontera",
                                                          "Línea de la Concepción (La)",
                                                          "Puerto de Santa María (El)",
                                                          "Puerto Real",
                                                          "Rota",
                                                          "San Fernando",
                                                          "San Roque",
                                                          "Sanlúcar de Barrameda",
                                                          "Otra"};
// Cantabria
constexpr std::array<std::string_view, 4> kCiudades12 = {"Camargo", "Santander", "Torrelavega",
                                                         "Otra"};
// Castellón/Castelló
constexpr std::array<std::string_view, 6> kCiudades13 = {
    "Borriana/Burriana", "Castellón de la Plana/Castellò de la Plana",
    "Vall d'Uixó (la)",  "Villarreal/Vila-real",
    "Vinaròs",           "Otra"};
// Ceuta
constexpr std::array<std::string_view, 2> kCiudades14 = {"Ceuta", "Otra"};
// Ciudad Real
constexpr std::array<std::string_view, 6> kCiudades15 = {
    "Alcázar de San Juan", "Ciudad Real", "Puertollano", "Tomelloso", "Valdepeñas", "Otra"};
// Córdoba
constexpr std::array<std::string_view, 8> kCiudades16 = {
    "Baena", "Cabra", "Córdoba", "Lucena", "Montilla", "Priego de Córdoba", "Puente Genil", "Otra"};
// Cuenca
constexpr std::array<std::string_view, 2> kCiudades17 = {"Cuenca", "Otra"};
// Girona
constexpr std::array<std::string_view, 6> kCiudades18 = {"Blanes", "Figueres", "Girona",
                                                         "Olot",   "Salt",     "Otra"};
// Granada
constexpr std::array<std::string_view, 7> kCiudades19 = {"Almuñécar", "Baza",   "Granada", "Guadix",
                                                         "Loja",      "Motril", "Otra"};
// Guadalajara
constexpr std::array<std::string_view, 2> kCiudades20 = {"Guadalajara", "Otra"};
// Guipúzcoa
constexpr std::array<std::string_view, 6> kCiudades21 = {
    "Arrasate/Mondragón", "Donostia-San Sebastián", "Eibar", "Errenteria", "Irun", "Otra"};
// Huelva
constexpr std::array<std::string_view, 2> kCiudades22 = {"Huelva", "Otra"};
// Huesca
constexpr std::array<std::string_view, 2> kCiudades23 = {"Huesca", "Otra"};
// Illes Balears
constexpr std::array<std::string_view, 10> kCiudades24 = {"Calvià",
                                                          "Ciutadella de Menorca",
                                                          "Eivissa",
                                                          "Inca",
                                                          "Llucmajor",
                                                          "Mahón",
                                                          "Manacor",
                                                          "Palma de Mallorca",
                                                          "Santa Eulalia del Río",
                                                          "Otra"};
// Jaén
constexpr std::array<std::string_view, 7> kCiudades25 = {
    "Alcalá la Real", "Andújar", "Jaén", "Linares", "Martos", "Úbeda", "Otra"};
// La Rioja
constexpr std::array<std::string_view, 2> kCiudades26 = {"Logroño", "Otra"};
// Las Palmas
constexpr std::array<std::string_view, 9> kCiudades27 = {"Arrecife",
                                                         "Arucas",
                                                         "Galdar",
                                                         "Ingenio",
                                                         "Las Palmas de Gran Canaria",
                                                         "San Bartolomé de Tirajana",
                                                         "Santa Lucía",
                                                         "Telde",
                                                         "Otra"};
// León
constexpr std::array<std::string_view, 4> kCiudades28 = {"León", "Ponferrada",
                                                         "San Andrés del Rabanedo", "Otra"};
// Lugo
constexpr std::array<std::string_view, 2> kCiudades29 = {"Lugo", "Otra"};
// Lleida
constexpr std::array<std::string_view, 2> kCiudades30 = {"Lleida", "Otra"};
// Madrid
constexpr std::array<std::string_view, 24> kCiudades31 = {"Alcalá deBadalona",
                                                          "Alcobendas",
                                                          "Alcorcón",
                                                          "Arganda del Rey",
                                                          "Colmenar Viejo",
                                                          "Collado Villalba",
                                                          "Coslada",
                                                          "Fuenlabrada",
                                                          "Getafe",
                                                          "Leganés",
                                                          "Madrid",
                                                          "Majadahonda",
                                                          "Móstoles",
                                                          "Parla",
                                                          "Pinto",
                                                          "Pozuelo de Alarcón",
                                                          "Rivas-Vaciamadrid",
                                                          "Rozas de Madrid (Las)",
                                                          "San Fernando de Henares",
                                                          "San Sebastián de los Reyes",
                                                          "Torrejón de Ardoz",
                                                          "Tres Cantos",
                                                          "Valdemoro",
                                                          "Otra"};
// Málaga
constexpr std::array<std::string_view, 12> kCiudades32 = {
    "Antequera", "Benalmádena",           "Estepona", "Fuengirola",   "Málaga",       "Marbella",
    "Mijas",     "Rincón de la Victoria", "Ronda",    "Torremolinos", "Vélez-Málaga", "Otra"};
// Melilla
constexpr std::array<std::string_view, 2> kCiudades33 = {"Melilla", "Otra"};
// Murcia
constexpr std::array<std::string_view, 13> kCiudades34 = {"Águilas",
                                                          "Alcantarilla",
                                                          "Caravana de la Cruz",
                                                          "Cartagena",
                                                          "Cieza",
                                                          "Jumilla",
                                                          "Lorca",
                                                          "Molina de Segura",
                                                          "Murcia",
                                                          "Torre-Pacheco",
                                                          "Totana",
                                                          "Yecla",
                                                          "Otra"};
// Navarra
constexpr std::array<std::string_view, 4> kCiudades35 = {"Barañain", "Pamplona/Iruña", "Tudela",
                                                         "Otra"};
// Ourense
constexpr std::array<std::string_view, 2> kCiudades36 = {"Ourense", "Otra"};
// Palencia
constexpr std::array<std::string_view, 2> kCiudades37 = {"Palencia", "Otra"};
// Pontevedra
constexpr std::array<std::string_view, 9> kCiudades38 = {
    "Cangas", "Estrada (A)",           "Lalín", "Marín", "Pontevedra", "Redondela",
    "Vigo",   "Villagarcía de Aurosa", "Otra"};
// Salamanca
constexpr std::array<std::string_view, 2> kCiudades39 = {"Salamanca", "Otra"};
// Santa Cruz de Tenerife
constexpr std::array<std::string_view, 9> kCiudades40 = {"Arona",
                                                         "Icod de los Vinos",
                                                         "Orotava (La)",
                                                         "Puerto de la Cruz",
                                                         "Realejos (Los)",
                                                         "San Cristóbal de la Laguna",
                                                         "Santa Cruz de Tenerife",
                                                         "Tacoronte",
                                                         "Otra"};
// Segovia
constexpr std::array<std::string_view, 2> kCiudades41 = {"Segovia", "Otra"};
// Sevilla
constexpr std::array<std::string_view, 15> kCiudades42 = {"Alcalá de Guadaíra",
                                                          "Camas",
                                                          "Carmona",
                                                          "Costa del Río",
                                                          "Dos Hermanas",
                                                          "Écija",
                                                          "Lebrija",
                                                          "Mairena del Aljarafe",
                                                          "Morón de la Frontera",
                                                          "Palacios y Villafranca (Los)",
                                                          "Rinconada (La)",
                                                          "San Juan de Aznalfarache",
                                                          "Sevilla",
                                                          "Utrera",
                                                          "Otra"};
// Soria
constexpr std::array<std::string_view, 2> kCiudades43 = {"Soria", "Otra"};
// Tarragona
constexpr std::array<std::string_view, 6> kCiudades44 = {"Reus",  "Tarragona",     "Tortosa",
                                                         "Valls", "Vendrell (El)", "Otra"};
// Teruel
constexpr std::array<std::string_view, 2> kCiudades45 = {"Teruel", "Otra"};
// Toledo
constexpr std::array<std::string_view, 3> kCiudades46 = {"Talavera de la Reina", "Toledo", "Otra"};
// Valencia/València
constexpr std::array<std::string_view, 21> kCiudades47 = {
    "Alaquàs",   "Aldaia",     "Algemesí",        "Alzira",
    "Burjasot",  "Carcaixent", "Catarroja",       "Cullera",
    "Gandía",    "Manises",    "Mislata",         "Oliva",
    "Ontinyent", "Paterna",    "Quart de poblet", "Sagunto/Sagunt",
    "Sueca",     "Torrent",    "Valencia",        "Xirivella",
    "Otra"};
// Zamora
constexpr std::array<std::string_view, 2> kCiudades48 = {"Zamora", "Otra"};
// Zaragoza
constexpr std::array<std::string_view, 2> kCiudades49 = {"Zaragoza", "Otra"};
// Valladolid
constexpr std::array<std::string_view, 3> kCiudades50 = {"Medina del Campo", "Valladolid", "Otra"};
// Vizcaya
constexpr std::array<std::string_view, 12> kCiudades51 = {
    "Barakaldo", "Basauri", "Bilbao",      "Durango",   "Erandio", "Galdakao",
    "Getxo",     "Leiola",  "Portugalete", "Santurtzi", "Sestao",  "Otra"};

struct ProvinciaAntigua {
  std::string_view nombre;
  Ciudades ciudades;
};

constexpr std::array<ProvinciaAntigua, 52> kProvincias = {{
    {"A Coruña", kCiudades0},
    {"Álava", kCiudades1},
    {"Albacete", kCiudades2},
    {"Alicante/Alacant", kCiudades3},
    {"Almería", kCiudades4},
    {"Asturias", kCiudades5},
    {"Ávila", kCiudades6},
    {"Badajoz", kCiudades7},
    {"Barcelona", kCiudades8},
    {"Burgos", kCiudades9},
    {"Cáceres", kCiudades10},
    {"Cádiz", kCiudades11},
    {"Cantabria", kCiudades12},
    {"Castellón/Castelló", kCiudades13},
    {"Ceuta", kCiudades14},
    {"Ciudad Real", kCiudades15},
    {"Córdoba", kCiudades16},
    {"Cuenca", kCiudades17},
    {"Girona", kCiudades18},
    {"Granada", kCiudades19},
    {"Guadalajara", kCiudades20},
    {"Guipúzcoa", kCiudades21},
    {"Huelva", kCiudades22},
    {"Huesca", kCiudades23},
    {"Illes Balears", kCiudades24},
    {"Jaén", kCiudades25},
    {"La Rioja", kCiudades26},
    {"Las Palmas", kCiudades27},
    {"León", kCiudades28},
    {"Lugo", kCiudades29},
    {"Lleida", kCiudades30},
    {"Madrid", kCiudades31},
    {"Málaga", kCiudades32},
    {"Melilla", kCiudades33},
    {"Murcia", kCiudades34},
    {"Navarra", kCiudades35},
    {"Ourense", kCiudades36},
    {"Palencia", kCiudades37},
    {"Pontevedra", kCiudades38},
    {"Salamanca", kCiudades39},
    {"Santa Cruz de Tenerife", kCiudades40},
    {"Segovia", kCiudades41},
    {"Sevilla", kCiudades42},
    {"Soria", kCiudades43},
    {"Tarragona", kCiudades44},
    {"Teruel", kCiudades45},
    {"Toledo", kCiudades46},
    {"Valencia/València", kCiudades47},
    {"Zamora", kCiudades48},
    {"Zaragoza", kCiudades49},
    {"Valladolid", kCiudades50},
    {"Vizcaya", kCiudades51},
}};

template <class Lista>
bool Esta(const Lista& lista, int indice) {
  return indice >= 0 && static_cast<std::size_t>(indice) < lista.size();
}

}  // namespace

std::string_view ProvinciaDeIndice(int provincia) {
  return Esta(kProvincias, provincia) ? kProvincias[static_cast<std::size_t>(provincia)].nombre
                                      : std::string_view{};
}

std::string_view CiudadDeIndice(int provincia, int ciudad) {
  if (!Esta(kProvincias, provincia)) return {};
  const Ciudades lista = kProvincias[static_cast<std::size_t>(provincia)].ciudades;
  return Esta(lista, ciudad) ? lista[static_cast<std::size_t>(ciudad)] : std::string_view{};
}

}  // namespace novex
