<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Wayloom</name>
    <message>
        <source>%1 added, %2 were there before</source>
        <translation>%1 añadidos, %2 ya estaban</translation>
    </message>
    <message>
        <source>%1 exported</source>
        <translation>%1 exportados</translation>
    </message>
    <message>
        <source>%1 exported, %2 without a position left out</source>
        <translation>%1 exportados, %2 sin posición omitidos</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>%1 is damaged and counts as empty</source>
        <translation>%1 está dañado y cuenta como vacío</translation>
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
        <translation>%1 de %2 marcadas</translation>
    </message>
    <message>
        <source>Add To →</source>
        <translation>Guardar →</translation>
    </message>
    <message>
        <source>Added to favorites: %1</source>
        <translation>Añadido a favoritos: %1</translation>
    </message>
    <message>
        <source>Address is loading, please wait</source>
        <translation>Buscando la dirección, espere</translation>
    </message>
    <message>
        <source>Applications that are installed on this device appear here.</source>
        <translation>Aquí aparecen las aplicaciones instaladas en este dispositivo.</translation>
    </message>
    <message>
        <source>Arrived</source>
        <translation>Ha llegado</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Both are on: turn the position or the drive off</source>
        <translation>Ambos están activados: desactive la posición o el trayecto</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Contact Author</source>
        <translation>Contactar al autor</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copiado</translation>
    </message>
    <message>
        <source>Copy coordinates</source>
        <translation>Copiar las coordenadas</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>País</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Deleted “%1”</source>
        <translation>«%1» eliminado</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Drift speed</source>
        <translation>Velocidad de deriva</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Trayecto</translation>
    </message>
    <message>
        <source>Drive: %1, %2</source>
        <translation>Trayecto: %1, %2</translation>
    </message>
    <message>
        <source>Drive: %1, %2; you gave %3, %4</source>
        <translation>Trayecto: %1, %2; elegido: %3, %4</translation>
    </message>
    <message>
        <source>Driving: %1 %, %2 left, arrives %3</source>
        <translation>En camino: %1 %, faltan %2, llegada %3</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Destino</translation>
    </message>
    <message>
        <source>End here</source>
        <translation>Terminar aquí</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>Llegada</translation>
    </message>
    <message>
        <source>End Time must later than Start Time</source>
        <translation>La hora de llegada debe ser posterior a la de salida</translation>
    </message>
    <message>
        <source>Enter Address Here</source>
        <translation>Escriba una dirección</translation>
    </message>
    <message>
        <source>Export favorites to a file</source>
        <translation>Exportar los favoritos a un archivo</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Favoritos</translation>
    </message>
    <message>
        <source>Find an application</source>
        <translation>Buscar una aplicación</translation>
    </message>
    <message>
        <source>Fixed location</source>
        <translation>Ubicación fija</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Olvidar</translation>
    </message>
    <message>
        <source>Forget recent searches</source>
        <translation>Olvidar las búsquedas recientes</translation>
    </message>
    <message>
        <source>Hide the choices</source>
        <translation>Ocultar las opciones</translation>
    </message>
    <message>
        <source>House</source>
        <translation>Casa</translation>
    </message>
    <message>
        <source>Import favorites from a file</source>
        <translation>Importar favoritos de un archivo</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importar…</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>It was changed elsewhere meanwhile</source>
        <translation>Entretanto se cambió en otro lugar</translation>
    </message>
    <message>
        <source>Keep the ticks as they are under a name, and take them back later.</source>
        <translation>Guarda las marcas actuales con un nombre y recupéralas después.</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Mapa</translation>
    </message>
    <message>
        <source>Moved “%1”</source>
        <translation>«%1» movido</translation>
    </message>
    <message>
        <source>My location</source>
        <translation>Mi ubicación</translation>
    </message>
    <message>
        <source>Name of the set</source>
        <translation>Nombre del conjunto</translation>
    </message>
    <message>
        <source>No applications found</source>
        <translation>No se encontraron aplicaciones</translation>
    </message>
    <message>
        <source>No favorites yet</source>
        <translation>Aún no hay favoritos</translation>
    </message>
    <message>
        <source>No roads lead from %1 to %2</source>
        <translation>Ninguna carretera lleva de %1 a %2</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nada encontrado</translation>
    </message>
    <message>
        <source>Nothing found for %1: the position is off</source>
        <translation>Sin resultados para %1: la posición está desactivada</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>On at %1</source>
        <translation>Activado: %1</translation>
    </message>
    <message>
        <source>On at a position that is not on the globe</source>
        <translation>Activado en una posición que no está en el globo</translation>
    </message>
    <message>
        <source>Path planning failure, rechoose Start/End please</source>
        <translation>No se encontró ninguna ruta; elija otro origen o destino</translation>
    </message>
    <message>
        <source>Pick a place on the map and press “Add To →”.</source>
        <translation>Elija un lugar en el mapa y pulse «Guardar →».</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>Please Enter Favorites Name</source>
        <translation>Nombre del favorito</translation>
    </message>
    <message>
        <source>Please choose</source>
        <translation>Elegir</translation>
    </message>
    <message>
        <source>Please choose End</source>
        <translation>Elija el destino</translation>
    </message>
    <message>
        <source>Please choose End Time</source>
        <translation>Elija la hora de llegada</translation>
    </message>
    <message>
        <source>Please choose Start</source>
        <translation>Elija el origen</translation>
    </message>
    <message>
        <source>Please choose Start Time</source>
        <translation>Elija la hora de salida</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>Postcode</source>
        <translation>Código postal</translation>
    </message>
    <message>
        <source>Province</source>
        <translation>Provincia</translation>
    </message>
    <message>
        <source>Put the pin here</source>
        <translation>Poner el marcador aquí</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save as favorite</source>
        <translation>Guardar como favorito</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Search Failed</source>
        <translation>Sin resultados</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Buscando</translation>
    </message>
    <message>
        <source>Searching …</source>
        <translation>Buscando…</translation>
    </message>
    <message>
        <source>Sets</source>
        <translation>Conjuntos</translation>
    </message>
    <message>
        <source>Show the choices</source>
        <translation>Mostrar las opciones</translation>
    </message>
    <message>
        <source>Spotloom is working,please turn off the Spotloom first!</source>
        <translation>La ubicación fija está activada. ¡Desactívela primero!</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Origen</translation>
    </message>
    <message>
        <source>Start here</source>
        <translation>Empezar aquí</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>Starts %1, arrives %2</source>
        <translation>Salida %1, llegada %2</translation>
    </message>
    <message>
        <source>Street</source>
        <translation>Calle</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>Sugerencias</translation>
    </message>
    <message>
        <source>Switch mode</source>
        <translation>Cambiar de modo</translation>
    </message>
    <message>
        <source>The drive ends before it starts</source>
        <translation>El trayecto termina antes de empezar</translation>
    </message>
    <message>
        <source>The drive has no path</source>
        <translation>El trayecto no tiene recorrido</translation>
    </message>
    <message>
        <source>Ticked only</source>
        <translation>Solo marcadas</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>Touch again: there was no settings file yet</source>
        <translation>Toque otra vez: aún no había archivo de ajustes</translation>
    </message>
    <message>
        <source>Town</source>
        <translation>Localidad</translation>
    </message>
    <message>
        <source>Turn on the switch will change your coordinate automatic in a range</source>
        <translation>Si se activa, la posición se mueve sola por los alrededores</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Unknow</source>
        <translation>Desconocido</translation>
    </message>
    <message>
        <source>Visit Quorvil</source>
        <translation>Visitar Quorvil</translation>
    </message>
    <message>
        <source>Wayloom</source>
        <translation>Wayloom</translation>
    </message>
    <message>
        <source>Wayloom is working</source>
        <translation>Wayloom está en marcha</translation>
    </message>
    <message>
        <source>Wayloom is working,please turn off the Wayloom first!</source>
        <translation>El trayecto está en marcha. ¡Deténgalo primero!</translation>
    </message>
    <message>
        <source>White List</source>
        <translation>Lista blanca</translation>
    </message>
    <message>
        <source>fast</source>
        <translation>rápido</translation>
    </message>
    <message>
        <source>slow</source>
        <translation>lento</translation>
    </message>
    <message>
        <source>定位服务未开启</source>
        <translation>Los servicios de ubicación están desactivados</translation>
    </message>
    <message>
        <source>定位失败</source>
        <translation>No se pudo obtener la ubicación</translation>
    </message>
    <message>
        <source>请开启定位以保证程序正常运行</source>
        <translation>Permita el acceso a su ubicación para que la aplicación funcione</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Aceptar</translation>
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
