<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Wayloom</name>
    <message>
        <source>%1 added, %2 were there before</source>
        <translation>%1 ajoutés, %2 y étaient déjà</translation>
    </message>
    <message>
        <source>%1 exported</source>
        <translation>%1 exportés</translation>
    </message>
    <message>
        <source>%1 exported, %2 without a position left out</source>
        <translation>%1 exportés, %2 sans position omis</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>%1 is damaged and counts as empty</source>
        <translation>%1 est endommagé et compte comme vide</translation>
    </message>
    <message>
        <source>%1 km</source>
        <translation>%1 km</translation>
    </message>
    <message>
        <source>%1 km/h</source>
        <translation>%1 km/h</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 of %2 ticked</source>
        <translation>%1 sur %2 cochées</translation>
    </message>
    <message>
        <source>Add To →</source>
        <translation>Ajouter →</translation>
    </message>
    <message>
        <source>Added to favorites: %1</source>
        <translation>Ajouté aux favoris : %1</translation>
    </message>
    <message>
        <source>Address is loading, please wait</source>
        <translation>Recherche de l’adresse, veuillez patienter</translation>
    </message>
    <message>
        <source>Applications that are installed on this device appear here.</source>
        <translation>Les applications installées sur cet appareil apparaissent ici.</translation>
    </message>
    <message>
        <source>Arrived</source>
        <translation>Arrivé</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Both are on: turn the position or the drive off</source>
        <translation>Les deux sont activés : désactivez la position ou le trajet</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Contact Author</source>
        <translation>Contacter l’auteur</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copié</translation>
    </message>
    <message>
        <source>Copy coordinates</source>
        <translation>Copier les coordonnées</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Pays</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Deleted “%1”</source>
        <translation>« %1 » supprimé</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Drift speed</source>
        <translation>Vitesse de dérive</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Trajet</translation>
    </message>
    <message>
        <source>Drive: %1, %2</source>
        <translation>Trajet : %1, %2</translation>
    </message>
    <message>
        <source>Drive: %1, %2; you gave %3, %4</source>
        <translation>Trajet : %1, %2 ; choisi : %3, %4</translation>
    </message>
    <message>
        <source>Driving: %1 %, %2 left, arrives %3</source>
        <translation>En route : %1 %, encore %2, arrivée %3</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Arrivée</translation>
    </message>
    <message>
        <source>End here</source>
        <translation>Arriver ici</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>Arrivée à</translation>
    </message>
    <message>
        <source>End Time must later than Start Time</source>
        <translation>L’heure d’arrivée doit suivre l’heure de départ</translation>
    </message>
    <message>
        <source>Enter Address Here</source>
        <translation>Saisir une adresse</translation>
    </message>
    <message>
        <source>Export favorites to a file</source>
        <translation>Exporter les favoris dans un fichier</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporter…</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Favoris</translation>
    </message>
    <message>
        <source>Find an application</source>
        <translation>Chercher une application</translation>
    </message>
    <message>
        <source>Fixed location</source>
        <translation>Position fixe</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Oublier</translation>
    </message>
    <message>
        <source>Forget recent searches</source>
        <translation>Oublier les recherches récentes</translation>
    </message>
    <message>
        <source>Hide the choices</source>
        <translation>Masquer les choix</translation>
    </message>
    <message>
        <source>House</source>
        <translation>Maison</translation>
    </message>
    <message>
        <source>Import favorites from a file</source>
        <translation>Importer des favoris depuis un fichier</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importer…</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informations</translation>
    </message>
    <message>
        <source>It was changed elsewhere meanwhile</source>
        <translation>Il a été modifié ailleurs entre-temps</translation>
    </message>
    <message>
        <source>Keep the ticks as they are under a name, and take them back later.</source>
        <translation>Gardez les coches actuelles sous un nom et reprenez-les plus tard.</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Carte</translation>
    </message>
    <message>
        <source>Moved “%1”</source>
        <translation>« %1 » déplacé</translation>
    </message>
    <message>
        <source>My location</source>
        <translation>Ma position</translation>
    </message>
    <message>
        <source>Name of the set</source>
        <translation>Nom du jeu</translation>
    </message>
    <message>
        <source>No applications found</source>
        <translation>Aucune application trouvée</translation>
    </message>
    <message>
        <source>No favorites yet</source>
        <translation>Aucun favori pour l’instant</translation>
    </message>
    <message>
        <source>No roads lead from %1 to %2</source>
        <translation>Aucune route ne mène de %1 à %2</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Rien trouvé</translation>
    </message>
    <message>
        <source>Nothing found for %1: the position is off</source>
        <translation>Rien trouvé pour %1 : la position est désactivée</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>On at %1</source>
        <translation>Activé : %1</translation>
    </message>
    <message>
        <source>On at a position that is not on the globe</source>
        <translation>Activé à une position qui n’est pas sur le globe</translation>
    </message>
    <message>
        <source>Path planning failure, rechoose Start/End please</source>
        <translation>Aucun itinéraire trouvé, choisissez un autre départ ou une autre arrivée</translation>
    </message>
    <message>
        <source>Pick a place on the map and press “Add To →”.</source>
        <translation>Choisissez un lieu sur la carte et appuyez sur « Ajouter → ».</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lieu</translation>
    </message>
    <message>
        <source>Please Enter Favorites Name</source>
        <translation>Nom du favori</translation>
    </message>
    <message>
        <source>Please choose</source>
        <translation>À choisir</translation>
    </message>
    <message>
        <source>Please choose End</source>
        <translation>Veuillez choisir l’arrivée</translation>
    </message>
    <message>
        <source>Please choose End Time</source>
        <translation>Veuillez choisir l’heure d’arrivée</translation>
    </message>
    <message>
        <source>Please choose Start</source>
        <translation>Veuillez choisir le départ</translation>
    </message>
    <message>
        <source>Please choose Start Time</source>
        <translation>Veuillez choisir l’heure de départ</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Postcode</source>
        <translation>Code postal</translation>
    </message>
    <message>
        <source>Province</source>
        <translation>Province</translation>
    </message>
    <message>
        <source>Put the pin here</source>
        <translation>Placer le repère ici</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save as favorite</source>
        <translation>Enregistrer comme favori</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Chercher</translation>
    </message>
    <message>
        <source>Search Failed</source>
        <translation>Aucun résultat</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Recherche</translation>
    </message>
    <message>
        <source>Searching …</source>
        <translation>Recherche…</translation>
    </message>
    <message>
        <source>Sets</source>
        <translation>Jeux</translation>
    </message>
    <message>
        <source>Show the choices</source>
        <translation>Afficher les choix</translation>
    </message>
    <message>
        <source>Spotloom is working,please turn off the Spotloom first!</source>
        <translation>La position fixe est active. Veuillez d’abord la désactiver !</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Départ</translation>
    </message>
    <message>
        <source>Start here</source>
        <translation>Partir d’ici</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Départ à</translation>
    </message>
    <message>
        <source>Starts %1, arrives %2</source>
        <translation>Départ %1, arrivée %2</translation>
    </message>
    <message>
        <source>Street</source>
        <translation>Rue</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>Suggestions</translation>
    </message>
    <message>
        <source>Switch mode</source>
        <translation>Changer de mode</translation>
    </message>
    <message>
        <source>The drive ends before it starts</source>
        <translation>Le trajet se termine avant de commencer</translation>
    </message>
    <message>
        <source>The drive has no path</source>
        <translation>Le trajet n’a pas d’itinéraire</translation>
    </message>
    <message>
        <source>Ticked only</source>
        <translation>Cochées seules</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Aujourd’hui</translation>
    </message>
    <message>
        <source>Touch again: there was no settings file yet</source>
        <translation>Touchez encore : il n’y avait pas encore de fichier de réglages</translation>
    </message>
    <message>
        <source>Town</source>
        <translation>Localité</translation>
    </message>
    <message>
        <source>Turn on the switch will change your coordinate automatic in a range</source>
        <translation>Activé, la position se déplace d’elle-même dans les environs</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Unknow</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>Visit Quorvil</source>
        <translation>Visiter Quorvil</translation>
    </message>
    <message>
        <source>Wayloom</source>
        <translation>Wayloom</translation>
    </message>
    <message>
        <source>Wayloom is working</source>
        <translation>Wayloom est actif</translation>
    </message>
    <message>
        <source>Wayloom is working,please turn off the Wayloom first!</source>
        <translation>Le trajet est en cours. Veuillez d’abord l’arrêter !</translation>
    </message>
    <message>
        <source>White List</source>
        <translation>Liste blanche</translation>
    </message>
    <message>
        <source>fast</source>
        <translation>rapide</translation>
    </message>
    <message>
        <source>slow</source>
        <translation>lent</translation>
    </message>
    <message>
        <source>定位服务未开启</source>
        <translation>Les services de localisation sont désactivés</translation>
    </message>
    <message>
        <source>定位失败</source>
        <translation>Échec de la localisation</translation>
    </message>
    <message>
        <source>请开启定位以保证程序正常运行</source>
        <translation>Veuillez autoriser l’accès à votre position pour que l’application fonctionne</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>d MMM yyyy</source>
        <translation>d MMM yyyy</translation>
    </message>
    <message>
        <source>ddd d MMM</source>
        <translation>ddd d MMM</translation>
    </message>
</context>
</TS>
