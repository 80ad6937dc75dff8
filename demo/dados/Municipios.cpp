#include "demo/dados/Municipios.h"

#include <QStringList>

using namespace Qt::Literals::StringLiterals;

namespace {

struct TLista {
    const char16_t* sigla;
    const char16_t* nome;
    const char16_t* municipios;  // separated by ';', the capital first
};

constexpr TLista kListas[] = {
    {u"AC", u"Acre", u"Rio Branco;Cruzeiro do Sul;Sena Madureira;Tarauacá;Feijó"},
    {u"AL", u"Alagoas",
     u"Maceió;Arapiraca;Rio Largo;Palmeira dos Índios;União dos Palmares;Penedo;São Miguel dos Campos"},
    {u"AM", u"Amazonas", u"Manaus;Parintins;Itacoatiara;Manacapuru;Coari;Tabatinga;Tefé;Maués"},
    {u"AP", u"Amapá", u"Macapá;Santana;Laranjal do Jari;Oiapoque"},
    {u"BA", u"Bahia",
     u"Salvador;Feira de Santana;Vitória da Conquista;Camaçari;Juazeiro;Itabuna;Lauro de Freitas;"
     u"Ilhéus;Jequié;Teixeira de Freitas;Barreiras;Alagoinhas;Porto Seguro;Simões Filho;Paulo Afonso;"
     u"Eunápolis;Santo Antônio de Jesus;Valença;Luís Eduardo Magalhães;Guanambi;Serrinha;Irecê;"
     u"Cruz das Almas"},
    {u"CE", u"Ceará",
     u"Fortaleza;Caucaia;Juazeiro do Norte;Maracanaú;Sobral;Crato;Itapipoca;Maranguape;Iguatu;Quixadá;"
     u"Pacatuba;Aquiraz;Canindé;Russas;Crateús;Tianguá"},
    {u"DF", u"Distrito Federal", u"Brasília"},
    {u"ES", u"Espírito Santo",
     u"Vitória;Serra;Vila Velha;Cariacica;Cachoeiro de Itapemirim;Linhares;São Mateus;Colatina;"
     u"Guarapari;Aracruz;Viana;Nova Venécia"},
    {u"GO", u"Goiás",
     u"Goiânia;Aparecida de Goiânia;Anápolis;Rio Verde;Águas Lindas de Goiás;Luziânia;"
     u"Valparaíso de Goiás;Trindade;Formosa;Novo Gama;Senador Canedo;Itumbiara;Catalão;Jataí;"
     u"Planaltina;Caldas Novas"},
    {u"MA", u"Maranhão",
     u"São Luís;Imperatriz;São José de Ribamar;Timon;Caxias;Paço do Lumiar;Codó;Açailândia;Bacabal;"
     u"Balsas;Barra do Corda"},
    {u"MG", u"Minas Gerais",
     u"Belo Horizonte;Uberlândia;Contagem;Juiz de Fora;Betim;Montes Claros;Ribeirão das Neves;Uberaba;"
     u"Governador Valadares;Ipatinga;Sete Lagoas;Divinópolis;Santa Luzia;Ibirité;Poços de Caldas;"
     u"Patos de Minas;Pouso Alegre;Teófilo Otoni;Barbacena;Sabará;Varginha;Conselheiro Lafaiete;"
     u"Vespasiano;Itabira;Araguari;Passos;Ubá;Coronel Fabriciano;Muriaé;Ituiutaba;Lavras;Nova Serrana;"
     u"Itajubá;Ouro Preto;Viçosa;São João del Rei"},
    {u"MS", u"Mato Grosso do Sul",
     u"Campo Grande;Dourados;Três Lagoas;Corumbá;Ponta Porã;Naviraí;Nova Andradina;Aquidauana;"
     u"Sidrolândia"},
    {u"MT", u"Mato Grosso",
     u"Cuiabá;Várzea Grande;Rondonópolis;Sinop;Tangará da Serra;Cáceres;Sorriso;Lucas do Rio Verde;"
     u"Barra do Garças;Primavera do Leste;Alta Floresta"},
    {u"PA", u"Pará",
     u"Belém;Ananindeua;Santarém;Marabá;Parauapebas;Castanhal;Abaetetuba;Cametá;Marituba;Bragança;"
     u"Altamira;Tucuruí;Barcarena;Itaituba;Paragominas;Redenção"},
    {u"PB", u"Paraíba",
     u"João Pessoa;Campina Grande;Santa Rita;Patos;Bayeux;Sousa;Cabedelo;Cajazeiras;Guarabira"},
    {u"PE", u"Pernambuco",
     u"Recife;Jaboatão dos Guararapes;Olinda;Caruaru;Petrolina;Paulista;Cabo de Santo Agostinho;"
     u"Camaragibe;Garanhuns;Vitória de Santo Antão;Igarassu;São Lourenço da Mata;Abreu e Lima;Ipojuca;"
     u"Serra Talhada;Gravatá;Arcoverde"},
    {u"PI", u"Piauí", u"Teresina;Parnaíba;Picos;Piripiri;Floriano;Barras;Campo Maior"},
    {u"PR", u"Paraná",
     u"Curitiba;Londrina;Maringá;Ponta Grossa;Cascavel;São José dos Pinhais;Foz do Iguaçu;Colombo;"
     u"Guarapuava;Paranaguá;Araucária;Toledo;Apucarana;Pinhais;Campo Largo;Arapongas;"
     u"Almirante Tamandaré;Piraquara;Umuarama;Cambé;Fazenda Rio Grande;Campo Mourão;Francisco Beltrão;"
     u"Paranavaí;Pato Branco;Cianorte;Telêmaco Borba;Castro"},
    {u"RJ", u"Rio de Janeiro",
     u"Rio de Janeiro;São Gonçalo;Duque de Caxias;Nova Iguaçu;Niterói;Belford Roxo;"
     u"Campos dos Goytacazes;São João de Meriti;Petrópolis;Volta Redonda;Macaé;Magé;Itaboraí;Cabo Frio;"
     u"Angra dos Reis;Nova Friburgo;Barra Mansa;Teresópolis;Mesquita;Maricá;Nilópolis;Rio das Ostras;"
     u"Queimados;Araruama;Resende;Itaguaí"},
    {u"RN", u"Rio Grande do Norte",
     u"Natal;Mossoró;Parnamirim;São Gonçalo do Amarante;Macaíba;Ceará-Mirim;Caicó;Currais Novos"},
    {u"RO", u"Rondônia", u"Porto Velho;Ji-Paraná;Ariquemes;Vilhena;Cacoal;Rolim de Moura"},
    {u"RR", u"Roraima", u"Boa Vista;Rorainópolis;Caracaraí"},
    {u"RS", u"Rio Grande do Sul",
     u"Porto Alegre;Caxias do Sul;Canoas;Pelotas;Santa Maria;Gravataí;Viamão;Novo Hamburgo;"
     u"São Leopoldo;Rio Grande;Alvorada;Passo Fundo;Sapucaia do Sul;Uruguaiana;Santa Cruz do Sul;"
     u"Cachoeirinha;Bagé;Bento Gonçalves;Erechim;Guaíba;Cachoeira do Sul;Sant'Ana do Livramento;Esteio;"
     u"Ijuí;Sapiranga;Lajeado;Santo Ângelo;Alegrete;Farroupilha"},
    {u"SC", u"Santa Catarina",
     u"Florianópolis;Joinville;Blumenau;São José;Chapecó;Itajaí;Criciúma;Jaraguá do Sul;Palhoça;Lages;"
     u"Balneário Camboriú;Brusque;Tubarão;São Bento do Sul;Camboriú;Navegantes;Caçador;Concórdia;"
     u"Rio do Sul;Araranguá"},
    {u"SE", u"Sergipe", u"Aracaju;Nossa Senhora do Socorro;Lagarto;Itabaiana;São Cristóvão;Estância"},
    {u"SP", u"São Paulo",
     u"São Paulo;Guarulhos;Campinas;São Bernardo do Campo;Santo André;Osasco;São José dos Campos;"
     u"Ribeirão Preto;Sorocaba;Mauá;São José do Rio Preto;Mogi das Cruzes;Diadema;Jundiaí;Piracicaba;"
     u"Carapicuíba;Bauru;Itaquaquecetuba;São Vicente;Franca;Praia Grande;Guarujá;Taubaté;Limeira;"
     u"Suzano;Taboão da Serra;Sumaré;Barueri;Embu das Artes;São Carlos;Marília;Indaiatuba;Cotia;"
     u"Americana;Jacareí;Itapevi;Araraquara;Presidente Prudente;Hortolândia;Rio Claro;Araçatuba;Santos;"
     u"Ferraz de Vasconcelos;Santa Bárbara d'Oeste;Francisco Morato;Itu;Bragança Paulista;"
     u"Pindamonhangaba;Itapetininga;São Caetano do Sul;Mogi Guaçu;Atibaia;Botucatu;Jaú;Catanduva;"
     u"Barretos;Ourinhos;Assis;Birigui;Sertãozinho;Tatuí;Votuporanga;Avaré"},
    {u"TO", u"Tocantins",
     u"Palmas;Araguaína;Gurupi;Porto Nacional;Paraíso do Tocantins;Colinas do Tocantins"},
};

UnicodeString Texto(const char16_t* texto) {
    return UnicodeString::fromUtf16(texto);
}

std::vector<TEstado> LerEstados() {
    std::vector<TEstado> estados;
    for (const TLista& lista : kListas) estados.push_back({Texto(lista.sigla), Texto(lista.nome)});
    return estados;
}

std::vector<TMunicipio> LerMunicipios() {
    std::vector<TMunicipio> municipios;
    for (const TLista& lista : kListas) {
        for (const UnicodeString& nome : Texto(lista.municipios).split(u';')) {
            municipios.push_back({static_cast<int>(municipios.size()) + 1, nome, Texto(lista.sigla)});
        }
    }
    return municipios;
}

}  // namespace

const std::vector<TEstado>& Estados() {
    static const std::vector<TEstado> estados = LerEstados();
    return estados;
}

TStringArray SiglasDosEstados() {
    TStringArray siglas;
    for (const TEstado& estado : Estados()) siglas.push_back(estado.Sigla);
    return siglas;
}

const std::vector<TMunicipio>& Municipios() {
    static const std::vector<TMunicipio> municipios = LerMunicipios();
    return municipios;
}
