<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name></name>
    <message>
        <source>Launch at login is more reliable when the Tonquil is located in the Applications folder.</source>
        <translation>El inicio al abrir la sesión es más fiable cuando Tonquil está en la carpeta «Applications».</translation>
    </message>
    <message>
        <source>If the app is not launching at next login, try moving it to the Applications folder.</source>
        <translation>Si la aplicación no se inicia la próxima vez que abra la sesión, pruebe a moverla a la carpeta «Applications».</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cannot enable remote configuration</source>
        <translation>No se puede activar la configuración remota</translation>
    </message>
    <message>
        <source>Network broadcast does not appear to work. Please check that only one instance of Tonquil is running on this computer and that UDP ports 44188 and 48184 are not blocked by a firewall.</source>
        <translation>La difusión en la red no parece funcionar. Compruebe que solo haya una instancia de Tonquil en ejecución en este equipo y que ningún cortafuegos bloquee los puertos UDP 44188 y 48184.</translation>
    </message>
</context>
<context>
    <name>CurvePlot</name>
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>Output at input 0, 0.5 and 1.</source>
        <translation>Salida para las entradas 0, 0.5 y 1.</translation>
    </message>
    <message>
        <source>The correction is off.</source>
        <translation>La corrección está desactivada.</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Ent</translation>
    </message>
    <message>
        <source>R</source>
        <translation>R</translation>
    </message>
    <message>
        <source>G</source>
        <translation>V</translation>
    </message>
    <message>
        <source>B</source>
        <translation>A</translation>
    </message>
</context>
<context>
    <name>Files</name>
    <message>
        <source>Settings of one display (*.tonquil)</source>
        <translation>Ajustes de una pantalla (*.tonquil)</translation>
    </message>
    <message>
        <source>Settings of all displays (*.tonquil-screens)</source>
        <translation>Ajustes de todas las pantallas (*.tonquil-screens)</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>Abrir ajustes</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Save settings</source>
        <translation>Guardar ajustes</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>ICC profile of one display (*.icc)</source>
        <translation>Perfil ICC de una pantalla (*.icc)</translation>
    </message>
    <message>
        <source>Calibration of one display (*.cal)</source>
        <translation>Calibración de una pantalla (*.cal)</translation>
    </message>
    <message>
        <source>Settings, profiles and tables (*.tonquil *.tonquil-screens *.icc *.icm *.cal *.amp)</source>
        <translation>Ajustes, perfiles y tablas (*.tonquil *.tonquil-screens *.icc *.icm *.cal *.amp)</translation>
    </message>
    <message>
        <source>Save as preset</source>
        <translation>Guardar como preajuste</translation>
    </message>
    <message>
        <source>Name of the preset:</source>
        <translation>Nombre del preajuste:</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Reemplazar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
</context>
<context>
    <name>KVAboutBox</name>
    <message>
        <source>%@ (%@)</source>
        <translation>%@ (%@)</translation>
    </message>
    <message>
        <source>Version %@</source>
        <translation>Versión %@</translation>
    </message>
    <message>
        <source>About Tonquil</source>
        <translation>Acerca de Tonquil</translation>
    </message>
    <message>
        <source>:/about/Credits.html</source>
        <translation>:/about/Credits_es.html</translation>
    </message>
</context>
<context>
    <name>KVFluxCheck</name>
    <message>
        <source>%@ is present on this computer.</source>
        <translation>%@ está presente en este equipo.</translation>
    </message>
    <message>
        <source>[%1$@ installed, might interfer %2$@.]</source>
        <translation>%2$@ cambia las mismas tablas de color que %1$@, y cada uno puede sobrescribir lo que haya fijado el otro. Salga de %2$@, o desactívelo, mientras use %1$@.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
</context>
<context>
    <name>Panel</name>
    <message>
        <source>Apply correction</source>
        <translation>Aplicar la corrección</translation>
    </message>
    <message>
        <source>Show panel</source>
        <translation>Mostrar el panel</translation>
    </message>
    <message>
        <source>Show targets</source>
        <translation>Mostrar los patrones</translation>
    </message>
    <message>
        <source>Open settings…</source>
        <translation>Abrir ajustes…</translation>
    </message>
    <message>
        <source>Save settings…</source>
        <translation>Guardar ajustes…</translation>
    </message>
    <message>
        <source>Remote configuration is on</source>
        <translation>La configuración remota está activada</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Preferencias…</translation>
    </message>
    <message>
        <source>Tonquil on the web</source>
        <translation>Tonquil en la web</translation>
    </message>
    <message>
        <source>About calibration targets</source>
        <translation>Acerca de los patrones de calibración</translation>
    </message>
    <message>
        <source>About Tonquil</source>
        <translation>Acerca de Tonquil</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Menos</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Más</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punto</translation>
    </message>
    <message>
        <source>Focused value</source>
        <translation>Valor seleccionado</translation>
    </message>
    <message>
        <source>Channel strip</source>
        <translation>Barra de canales</translation>
    </message>
    <message>
        <source>Stands for the slider of the focused control; its picker moves the focus.</source>
        <translation>Representa el deslizador del control seleccionado; su selector mueve la selección.</translation>
    </message>
    <message>
        <source>Tonquil</source>
        <translation>Tonquil</translation>
    </message>
    <message>
        <source>Which point of the curve the sliders move.</source>
        <translation>Qué punto de la curva mueven los deslizadores.</translation>
    </message>
    <message>
        <source>Transfer curves</source>
        <translation>Curvas de transferencia</translation>
    </message>
    <message>
        <source>Whether the displays show their curves or their own calibration.</source>
        <translation>Si las pantallas muestran sus curvas o su propia calibración.</translation>
    </message>
    <message>
        <source>Reset to calibration</source>
        <translation>Volver a la calibración</translation>
    </message>
    <message>
        <source>Gives every display its own calibration back and makes the curves neutral.</source>
        <translation>Devuelve a cada pantalla su propia calibración y deja las curvas neutras.</translation>
    </message>
    <message>
        <source>Opens the window of test patterns to look at while the sliders move.</source>
        <translation>Abre la ventana de patrones que se miran mientras se mueven los deslizadores.</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>Fusión</translation>
    </message>
    <message>
        <source>Over calibration</source>
        <translation>Sobre la calibración</translation>
    </message>
    <message>
        <source>Absolute</source>
        <translation>Absoluta</translation>
    </message>
    <message>
        <source>Whether the curve is laid over the display&apos;s calibration or replaces it.</source>
        <translation>Si la curva se superpone a la calibración de la pantalla o la sustituye.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Open recent</source>
        <translation>Abrir reciente</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ver</translation>
    </message>
    <message>
        <source>Advanced panel</source>
        <translation>Panel avanzado</translation>
    </message>
    <message>
        <source>Dark theme</source>
        <translation>Tema oscuro</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Negro</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Blanco</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Medio</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>Master</source>
        <translation>Global</translation>
    </message>
    <message>
        <source>%1, %2 point</source>
        <translation>%1, punto %2</translation>
    </message>
    <message>
        <source>Close the panel</source>
        <translation>Cerrar el panel</translation>
    </message>
    <message>
        <source>Companions on the network may change the displays</source>
        <translation>Las aplicaciones complementarias de la red pueden cambiar las pantallas</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menú</translation>
    </message>
    <message>
        <source>Choose which displays are edited</source>
        <translation>Elegir qué pantallas se editan</translation>
    </message>
    <message>
        <source>Edited: %1</source>
        <translation>Se edita: %1</translation>
    </message>
    <message>
        <source>Changes are not saved at the moment. Tonquil keeps trying.</source>
        <translation>Los cambios no se guardan por el momento. Tonquil lo sigue intentando.</translation>
    </message>
    <message>
        <source>All displays: an edit replaces the curve of each</source>
        <translation>Todas las pantallas: un cambio sustituye la curva de cada una</translation>
    </message>
    <message>
        <source>Identify displays</source>
        <translation>Identificar las pantallas</translation>
    </message>
    <message>
        <source>Hide the sliders of the colours</source>
        <translation>Ocultar los deslizadores de los colores</translation>
    </message>
    <message>
        <source>Show the sliders of the colours</source>
        <translation>Mostrar los deslizadores de los colores</translation>
    </message>
    <message>
        <source>Hold to compare with the uncorrected display</source>
        <translation>Mantener pulsado para comparar con la pantalla sin corregir</translation>
    </message>
    <message>
        <source>Corrects this display. Show targets and move the slider until stripes look plain.</source>
        <translation>Corrige la pantalla: muestre los patrones y mueva el control hasta que se fundan las rayas.</translation>
    </message>
    <message>
        <source>Drag it, or turn the wheel over it or its number.</source>
        <translation>Arrastrar, o girar la rueda sobre el deslizador o su número.</translation>
    </message>
    <message>
        <source>With Ctrl a drag is four times as fine.</source>
        <translation>Con Ctrl, el arrastre es cuatro veces más fino.</translation>
    </message>
    <message>
        <source>With Shift the other colours follow.</source>
        <translation>Con Mayús, los demás colores lo siguen.</translation>
    </message>
    <message>
        <source>A double-click makes it neutral.</source>
        <translation>Un doble clic fija el valor neutro.</translation>
    </message>
    <message>
        <source>An edit replaces the curve of each display</source>
        <translation>Un cambio sustituye la curva de cada pantalla</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Preajustes</translation>
    </message>
    <message>
        <source>Save as preset…</source>
        <translation>Guardar como preajuste…</translation>
    </message>
    <message>
        <source>Make editable</source>
        <translation>Hacer editable</translation>
    </message>
    <message>
        <source>Tonquil: correction on</source>
        <translation>Tonquil: corrección activada</translation>
    </message>
    <message>
        <source>Tonquil: correction off</source>
        <translation>Tonquil: corrección desactivada</translation>
    </message>
</context>
<context>
    <name>PanelSubject</name>
    <message>
        <source>No display</source>
        <translation>Ninguna pantalla</translation>
    </message>
    <message>
        <source>All displays</source>
        <translation>Todas las pantallas</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Show the panel when Tonquil starts</source>
        <translation>Mostrar el panel al iniciar Tonquil</translation>
    </message>
    <message>
        <source>Start Tonquil at login</source>
        <translation>Iniciar Tonquil al abrir la sesión</translation>
    </message>
    <message>
        <source>Correct the displays as soon as Tonquil starts</source>
        <translation>Corregir las pantallas en cuanto se inicie Tonquil</translation>
    </message>
    <message>
        <source>Apply the curves again every few seconds</source>
        <translation>Volver a aplicar las curvas cada pocos segundos</translation>
    </message>
    <message>
        <source>Show sliders for the single channels</source>
        <translation>Mostrar deslizadores para cada canal</translation>
    </message>
    <message>
        <source>Show the channel strip</source>
        <translation>Mostrar la barra de canales</translation>
    </message>
    <message>
        <source>Show hints under targets</source>
        <translation>Mostrar consejos bajo los patrones</translation>
    </message>
    <message>
        <source>Dark theme</source>
        <translation>Tema oscuro</translation>
    </message>
    <message>
        <source>The display under the panel</source>
        <translation>La pantalla bajo el panel</translation>
    </message>
    <message>
        <source>All displays</source>
        <translation>Todas las pantallas</translation>
    </message>
    <message>
        <source>Shows the panel</source>
        <translation>Muestra el panel</translation>
    </message>
    <message>
        <source>Switches the correction on or off</source>
        <translation>Activa o desactiva la corrección</translation>
    </message>
    <message>
        <source>Show Tonquil in:</source>
        <translation>Mostrar Tonquil en:</translation>
    </message>
    <message>
        <source>The task bar</source>
        <translation>La barra de tareas</translation>
    </message>
    <message>
        <source>The status area</source>
        <translation>El área de estado</translation>
    </message>
    <message>
        <source>Switch the correction on or off</source>
        <translation>Activar o desactivar la corrección</translation>
    </message>
    <message>
        <source>Show the panel under the pointer</source>
        <translation>Mostrar el panel bajo el puntero</translation>
    </message>
    <message>
        <source>Let companions on the local network read and set the curves</source>
        <translation>Permitir que las aplicaciones complementarias de la red local lean y cambien las curvas</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Edits change:</source>
        <translation>Los cambios afectan a:</translation>
    </message>
    <message>
        <source>Starting Tonquil again:</source>
        <translation>Iniciar Tonquil de nuevo:</translation>
    </message>
    <message>
        <source>Hot keys</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Remote</source>
        <translation>Control remoto</translation>
    </message>
    <message>
        <source>Show the panel</source>
        <translation>Mostrar el panel</translation>
    </message>
    <message>
        <source>Not needed here: no correction is lost unnoticed.</source>
        <translation>Aquí no hace falta: ninguna corrección se pierde sin que se note.</translation>
    </message>
    <message>
        <source>Change in desktop…</source>
        <translation>Cambiar en el escritorio…</translation>
    </message>
    <message>
        <source>This desktop leaves hot keys to its own settings. Bind these commands to keys there:</source>
        <translation>Este escritorio deja los atajos a sus propios ajustes. Asigne allí teclas a estas órdenes:</translation>
    </message>
    <message>
        <source>No keys given yet</source>
        <translation>Aún sin teclas</translation>
    </message>
    <message>
        <source>Keep night light</source>
        <translation>Conservar la luz nocturna</translation>
    </message>
    <message>
        <source>There is no password: any computer there can do this.</source>
        <translation>No hay contraseña: cualquier equipo de esa red puede hacerlo.</translation>
    </message>
</context>
<context>
    <name>Problem</name>
    <message>
        <source>UDP port 44188 cannot be used. Another program may have it. It is tried again every 5 seconds.</source>
        <translation>No se puede usar el puerto UDP 44188. Puede que lo tenga otro programa. Se vuelve a intentar cada 5 segundos.</translation>
    </message>
    <message>
        <source>The panel is on no display. Move it onto one.</source>
        <translation>El panel no está en ninguna pantalla. Muévalo a una.</translation>
    </message>
    <message>
        <source>There is no display that could be corrected.</source>
        <translation>No hay ninguna pantalla que se pueda corregir.</translation>
    </message>
    <message>
        <source>No such display</source>
        <translation>No existe esa pantalla</translation>
    </message>
    <message>
        <source>No display with the reference ID %@ is attached. tonquilctl displays lists them.</source>
        <translation>No hay ninguna pantalla conectada con el ID de referencia %@. «tonquilctl displays» las enumera.</translation>
    </message>
    <message>
        <source>The file was not opened</source>
        <translation>El archivo no se ha abierto</translation>
    </message>
    <message>
        <source>No Matching Screens</source>
        <translation>Ninguna pantalla coincide</translation>
    </message>
    <message>
        <source>Settings from this file apply to different screens than those available on this computer.</source>
        <translation>Los ajustes de este archivo son para pantallas distintas de las disponibles en este equipo.</translation>
    </message>
    <message>
        <source>It holds neither settings nor a whole table of 768 bytes. Nothing has been changed.</source>
        <translation>No contiene ajustes ni una tabla completa de 768 bytes. No se ha cambiado nada.</translation>
    </message>
    <message>
        <source>Saving failed</source>
        <translation>Error al guardar</translation>
    </message>
    <message>
        <source>Could not save settings at this location.</source>
        <translation>No se pudieron guardar los ajustes en esta ubicación.</translation>
    </message>
    <message>
        <source>The file name is empty or has a NUL in it.</source>
        <translation>El nombre del archivo está vacío o contiene un carácter NUL.</translation>
    </message>
    <message>
        <source>This key combination already does something else in Tonquil.</source>
        <translation>Este atajo ya hace otra cosa en Tonquil.</translation>
    </message>
    <message>
        <source>Key combinations for all programs are not available on this desktop.</source>
        <translation>Los atajos globales no están disponibles en este escritorio.</translation>
    </message>
    <message>
        <source>This display has no gamma ramp.</source>
        <translation>Esta pantalla no tiene tabla de gamma.</translation>
    </message>
    <message>
        <source>There is no X server to talk to: DISPLAY is not set.</source>
        <translation>No hay ningún servidor X accesible: DISPLAY no está definido.</translation>
    </message>
    <message>
        <source>The X server has no screen.</source>
        <translation>El servidor X no tiene ninguna pantalla.</translation>
    </message>
    <message>
        <source>The X server has no RandR extension, so its displays cannot be corrected.</source>
        <translation>El servidor X no tiene la extensión RandR, por lo que sus pantallas no se pueden corregir.</translation>
    </message>
    <message>
        <source>The X server&apos;s RandR extension is older than 1.3, so its displays cannot be corrected.</source>
        <translation>La extensión RandR del servidor X es anterior a la 1.3, por lo que sus pantallas no se pueden corregir.</translation>
    </message>
    <message>
        <source>This X server only draws into a Wayland desktop: setting its gamma ramps changes nothing.</source>
        <translation>Este servidor X solo dibuja en un escritorio Wayland: fijar sus tablas de gamma no cambia nada.</translation>
    </message>
    <message>
        <source>This key cannot be part of a key combination for all programs.</source>
        <translation>Esta tecla no puede formar parte de un atajo global.</translation>
    </message>
    <message>
        <source>The keyboard has no such modifier key for a key combination.</source>
        <translation>El teclado no tiene esa tecla modificadora para un atajo.</translation>
    </message>
    <message>
        <source>Tonquil itself already uses this key combination.</source>
        <translation>Tonquil ya usa este atajo.</translation>
    </message>
    <message>
        <source>The X server keeps this key combination for switching terminals.</source>
        <translation>El servidor X reserva esta combinación de teclas para cambiar de terminal.</translation>
    </message>
    <message>
        <source>Another program already uses this key combination.</source>
        <translation>Otro programa ya usa este atajo.</translation>
    </message>
    <message>
        <source>The X server has no such key, so it cannot be part of a key combination.</source>
        <translation>El servidor X no conoce esa tecla, por lo que no puede formar parte de un atajo.</translation>
    </message>
    <message>
        <source>The X server refuses this key combination.</source>
        <translation>El servidor X rechaza este atajo.</translation>
    </message>
    <message>
        <source>The X server has gone, so no key combination can be set.</source>
        <translation>El servidor X ya no está, por lo que no se puede fijar ningún atajo.</translation>
    </message>
    <message>
        <source>The property list is damaged.</source>
        <translation>La lista de propiedades está dañada.</translation>
    </message>
    <message>
        <source>The property list is too large or too deeply nested.</source>
        <translation>La lista de propiedades es demasiado grande o tiene demasiados niveles.</translation>
    </message>
    <message>
        <source>This is not a property list.</source>
        <translation>Esto no es una lista de propiedades.</translation>
    </message>
    <message>
        <source>The property list is too large.</source>
        <translation>La lista de propiedades es demasiado grande.</translation>
    </message>
    <message>
        <source>There is not enough memory to read the property list.</source>
        <translation>No hay memoria suficiente para leer la lista de propiedades.</translation>
    </message>
    <message>
        <source>There is no room for the curves of so many more displays.</source>
        <translation>No hay sitio para las curvas de tantas pantallas más.</translation>
    </message>
    <message>
        <source>no space is left on the disk</source>
        <translation>no queda espacio en el disco</translation>
    </message>
    <message>
        <source>your share of the disk is used up</source>
        <translation>su cuota de disco está agotada</translation>
    </message>
    <message>
        <source>the file would be larger than is allowed</source>
        <translation>el archivo sería mayor de lo permitido</translation>
    </message>
    <message>
        <source>you may not write there</source>
        <translation>no tiene permiso para escribir allí</translation>
    </message>
    <message>
        <source>the disk is read-only</source>
        <translation>el disco es de solo lectura</translation>
    </message>
    <message>
        <source>its folder does not exist</source>
        <translation>su carpeta no existe</translation>
    </message>
    <message>
        <source>a part of its path is not a folder</source>
        <translation>una parte de su ruta no es una carpeta</translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation>su nombre es demasiado largo</translation>
    </message>
    <message>
        <source>its symbolic links lead in a circle</source>
        <translation>sus enlaces simbólicos forman un círculo</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>es una carpeta</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>it is read-only</source>
        <translation>es de solo lectura</translation>
    </message>
    <message>
        <source>another program is saving it right now</source>
        <translation>otro programa lo está guardando ahora mismo</translation>
    </message>
    <message>
        <source>The file could not be saved: its name is empty or has a NUL in it.</source>
        <translation>No se pudo guardar el archivo: su nombre está vacío o contiene un NUL.</translation>
    </message>
    <message>
        <source>%@ was saved, but the disk may not have kept it: %@.</source>
        <translation>%@ se guardó, pero puede que el disco no lo haya conservado: %@.</translation>
    </message>
    <message>
        <source>%@ could not be saved: %@. The older file was kept.</source>
        <translation>No se pudo guardar %@: %@. Se conservó el archivo anterior.</translation>
    </message>
    <message>
        <source>%@ could not be saved: %@.</source>
        <translation>No se pudo guardar %@: %@.</translation>
    </message>
    <message>
        <source>%@ is not a regular file.</source>
        <translation>%@ no es un archivo normal.</translation>
    </message>
    <message>
        <source>%@ could not be read: %@.</source>
        <translation>No se pudo leer %@: %@.</translation>
    </message>
    <message>
        <source>No such file: %@.</source>
        <translation>No existe el archivo: %@.</translation>
    </message>
    <message>
        <source>%@ is not readable by you.</source>
        <translation>No tiene permiso para leer %@.</translation>
    </message>
    <message>
        <source>%@ is a symbolic link that leads in a circle.</source>
        <translation>%@ es un enlace simbólico que forma un círculo.</translation>
    </message>
    <message>
        <source>The file name is too long: %@.</source>
        <translation>El nombre del archivo es demasiado largo: %@.</translation>
    </message>
    <message>
        <source>%@ could not be opened: %@.</source>
        <translation>No se pudo abrir %@: %@.</translation>
    </message>
    <message>
        <source>%@ is a folder, not a file.</source>
        <translation>%@ es una carpeta, no un archivo.</translation>
    </message>
    <message>
        <source>%@ is larger than %@.</source>
        <translation>%@ supera los %@.</translation>
    </message>
    <message>
        <source>The folder %@ could not be made: %@.</source>
        <translation>No se pudo crear la carpeta %@: %@.</translation>
    </message>
    <message>
        <source>%@ is damaged and cannot be moved aside: %@.</source>
        <translation>%@ está dañado y no se puede apartar: %@.</translation>
    </message>
    <message>
        <source>The file has curves for more than %@ displays.</source>
        <translation>El archivo contiene curvas para más de %@ pantallas.</translation>
    </message>
    <message>
        <source>There is no Wayland compositor to talk to: WAYLAND_DISPLAY is not set.</source>
        <translation>No hay ningún compositor de Wayland con el que comunicarse: WAYLAND_DISPLAY no está definida.</translation>
    </message>
    <message>
        <source>The Wayland compositor does not answer.</source>
        <translation>El compositor de Wayland no responde.</translation>
    </message>
    <message>
        <source>This Wayland desktop does not let programs correct its displays.</source>
        <translation>Este escritorio de Wayland no permite que los programas corrijan sus pantallas.</translation>
    </message>
    <message>
        <source>The compositor gives an impossible size for this display&apos;s gamma ramp.</source>
        <translation>El compositor indica un tamaño imposible para la tabla de gamma de esta pantalla.</translation>
    </message>
    <message>
        <source>Another program, such as a night light, holds this display&apos;s gamma ramp, or it has none.</source>
        <translation>Otro programa, como una luz nocturna, tiene la tabla de gamma de esta pantalla, o esta no tiene ninguna.</translation>
    </message>
    <message>
        <source>The table can be edited now</source>
        <translation>Ahora se puede editar la tabla</translation>
    </message>
    <message>
        <source>A curve has taken its place that differs from it by %@ % of full level at most. Undo brings the table back.</source>
        <translation>La ha sustituido una curva que difiere de ella en un %@ % del nivel máximo como mucho. «Deshacer» recupera la tabla.</translation>
    </message>
    <message>
        <source>The calibration is not for a display.</source>
        <translation>La calibración no es para una pantalla.</translation>
    </message>
    <message>
        <source>The calibration file is damaged.</source>
        <translation>El archivo de calibración está dañado.</translation>
    </message>
    <message>
        <source>There is no display whose table could be saved.</source>
        <translation>No hay ninguna pantalla cuya tabla se pueda guardar.</translation>
    </message>
    <message>
        <source>The profile&apos;s calibration is damaged.</source>
        <translation>La calibración del perfil está dañada.</translation>
    </message>
    <message>
        <source>The profile is too large.</source>
        <translation>El perfil es demasiado grande.</translation>
    </message>
    <message>
        <source>The colour profile is damaged.</source>
        <translation>El perfil de color está dañado.</translation>
    </message>
    <message>
        <source>The colour profile holds no calibration that could be put on a display.</source>
        <translation>El perfil de color no contiene ninguna calibración que se pueda aplicar a una pantalla.</translation>
    </message>
    <message>
        <source>The colour profile could not be made.</source>
        <translation>No se ha podido crear el perfil de color.</translation>
    </message>
    <message>
        <source>It holds no settings.</source>
        <translation>No contiene ajustes.</translation>
    </message>
    <message>
        <source>There is no preset called &quot;%@&quot;.</source>
        <translation>No hay ningún preajuste llamado «%@».</translation>
    </message>
    <message>
        <source>There is a preset called &quot;%@&quot; already. Nothing was saved.</source>
        <translation>Ya hay un preajuste llamado «%@». No se ha guardado nada.</translation>
    </message>
    <message>
        <source>There is no display whose curve could be saved.</source>
        <translation>No hay ninguna pantalla cuya curva se pueda guardar.</translation>
    </message>
    <message>
        <source>A preset&apos;s name has up to 50 characters, no slash, and no dot in front. Nothing was saved.</source>
        <translation>El nombre de un preajuste tiene hasta 50 caracteres, ninguna barra y ningún punto al principio. No se ha guardado nada.</translation>
    </message>
    <message>
        <source>The folder of presets could not be made.</source>
        <translation>No se ha podido crear la carpeta de preajustes.</translation>
    </message>
    <message>
        <source>Switch off the desktop&apos;s night light, or end whatever else corrects this display. Tonquil then takes it over within seconds.</source>
        <translation>Desactive la luz nocturna del escritorio o cierre lo que corrija esta pantalla. Tonquil se hará cargo de ella en unos segundos.</translation>
    </message>
    <message>
        <source>The colour profile with the correction cannot be saved.</source>
        <translation>El perfil de color con la corrección no se puede guardar.</translation>
    </message>
    <message>
        <source>The compositor takes no colour profile for this display while HDR is on.</source>
        <translation>El compositor no acepta ningún perfil de color para esta pantalla mientras HDR está activado.</translation>
    </message>
    <message>
        <source>The compositor refuses the colour profile for this display.</source>
        <translation>El compositor rechaza el perfil de color para esta pantalla.</translation>
    </message>
    <message>
        <source>This is not a KDE Plasma desktop.</source>
        <translation>Este no es un escritorio de KDE Plasma.</translation>
    </message>
    <message>
        <source>The compositor takes no colour profile for this display.</source>
        <translation>El compositor no acepta ningún perfil de color para esta pantalla.</translation>
    </message>
    <message>
        <source>Another program is calibrating this display.</source>
        <translation>Otro programa está calibrando esta pantalla.</translation>
    </message>
    <message>
        <source>The compositor refuses to have this display corrected.</source>
        <translation>El compositor no permite corregir esta pantalla.</translation>
    </message>
    <message>
        <source>The session bus does not answer.</source>
        <translation>El bus de sesión no responde.</translation>
    </message>
</context>
<context>
    <name>Targets</name>
    <message>
        <source>Colour</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Greyscale</source>
        <translation>Escala de grises</translation>
    </message>
    <message>
        <source>Targets</source>
        <translation>Patrones</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Patrón</translation>
    </message>
    <message>
        <source>From a little way off, the striped quarters of each coloured square should look as bright as the plain ones.</source>
        <translation>Vistos desde cierta distancia, los cuartos rayados de cada cuadrado de color deben verse tan claros como los lisos.</translation>
    </message>
    <message>
        <source>Every step should stand out from the next, down to black and up to white, and no grey should look tinted.</source>
        <translation>Cada escalón debe distinguirse del siguiente, hasta el negro y hasta el blanco, y ningún gris debe verse teñido.</translation>
    </message>
</context>
<context>
    <name>tonquil::DDHotKeyTextField</name>
    <message>
        <source>Type a shortcut</source>
        <translation>Pulse un atajo</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
</context>
<context>
    <name>tonquil::HotKeyClearButton</name>
    <message>
        <source>Clear shortcut</source>
        <translation>Borrar el atajo</translation>
    </message>
</context>
</TS>
