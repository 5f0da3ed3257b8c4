<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AttentionFilterButton</name>
    <message>
        <source>Show, filtered</source>
        <translation>Mostrar, filtrado</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
</context>
<context>
    <name>AttentionFilterScene</name>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Group by</source>
        <translation>Agrupar por</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>Gravedad</translation>
    </message>
    <message>
        <source>Console</source>
        <translation>Consola</translation>
    </message>
    <message>
        <source>Kinds</source>
        <translation>Tipos</translation>
    </message>
    <message>
        <source>Consoles</source>
        <translation>Consolas</translation>
    </message>
    <message>
        <source>Find a console</source>
        <translation>Buscar una consola</translation>
    </message>
</context>
<context>
    <name>AttentionNowContent</name>
    <message>
        <source>Now</source>
        <translation>Ahora</translation>
    </message>
    <message>
        <source>No consoles yet.</source>
        <translation>Aún no hay consolas.</translation>
    </message>
    <message>
        <source>Add Corvel</source>
        <translation>Añadir Corvel</translation>
    </message>
</context>
<context>
    <name>AttentionScene</name>
    <message>
        <source>Now</source>
        <translation>Ahora</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Cambios</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Eventos</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Atención</translation>
    </message>
</context>
<context>
    <name>AttentionWatchButton</name>
    <message>
        <source>Watch</source>
        <translation>Vigilancia</translation>
    </message>
</context>
<context>
    <name>ChangesCard</name>
    <message>
        <source>Worse, above</source>
        <translation>Peor, arriba</translation>
    </message>
    <message>
        <source>Better, below</source>
        <translation>Mejor, abajo</translation>
    </message>
</context>
<context>
    <name>ChangesContent</name>
    <message>
        <source>Show all</source>
        <translation>Mostrar todo</translation>
    </message>
</context>
<context>
    <name>ChosenLine</name>
    <message>
        <source>Show all</source>
        <translation>Mostrar todo</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>%1 needs a value: %2.</source>
        <extracomment>%1 an option, %2 a word for what it takes</extracomment>
        <translation>%1 necesita un valor: %2.</translation>
    </message>
    <message>
        <source>Only this console, by name or address; may be repeated.</source>
        <translation>Solo esta consola, por nombre o dirección; se puede repetir.</translation>
    </message>
    <message>
        <source>Write JSON.</source>
        <translation>Escribir JSON.</translation>
    </message>
    <message>
        <source>Write comma-separated values.</source>
        <translation>Escribir valores separados por comas.</translation>
    </message>
    <message>
        <source>Use this data folder instead of Lodestar&apos;s own.</source>
        <translation>Usar esta carpeta de datos en vez de la de Lodestar.</translation>
    </message>
    <message>
        <source>Say how the command is used.</source>
        <translation>Decir cómo se usa el comando.</translation>
    </message>
    <message>
        <source>Say which version this is.</source>
        <translation>Decir qué versión es esta.</translation>
    </message>
    <message>
        <source>%1 takes a number, not %2.</source>
        <extracomment>%1 an option, %2 what was given</extracomment>
        <translation>%1 pide un número, no %2.</translation>
    </message>
    <message>
        <source>%1 takes minutes, or a time as 30s or 2h, not %2.</source>
        <translation>%1 pide minutos, o un tiempo como 30s o 2h, no %2.</translation>
    </message>
    <message>
        <source>There is no option %1.</source>
        <translation>No hay ninguna opción %1.</translation>
    </message>
    <message>
        <source>%1 takes no value.</source>
        <translation>%1 no lleva valor.</translation>
    </message>
    <message>
        <source>No command was given.</source>
        <translation>No se dio ningún comando.</translation>
    </message>
    <message>
        <source>There is no command %1.</source>
        <translation>No hay ningún comando %1.</translation>
    </message>
    <message>
        <source>%1 takes no option %2.</source>
        <translation>%1 no tiene la opción %2.</translation>
    </message>
    <message>
        <source>It is used so: %1</source>
        <translation>Se usa así: %1</translation>
    </message>
    <message>
        <source>--json and --csv exclude one another.</source>
        <translation>--json y --csv se excluyen.</translation>
    </message>
    <message>
        <source>Watches Corvel consoles and changes nothing.</source>
        <translation>Vigila consolas Corvel y no cambia nada.</translation>
    </message>
    <message>
        <source>With every command:</source>
        <translation>Con cada comando:</translation>
    </message>
    <message>
        <source>Ends with 0 when all is well, 1 after warnings, 2 after errors, and 3 when that is not known.</source>
        <translation>Termina con 0 si todo va bien, 1 tras avisos, 2 tras errores y 3 si no se sabe.</translation>
    </message>
    <message>
        <source>Read passwords from descriptor N, one a line.</source>
        <translation>Leer contraseñas del descriptor N, una por línea.</translation>
    </message>
    <message>
        <source>Tell how all consoles are. The exit code says how the fleet is.</source>
        <translation>Decir cómo están todas las consolas. El código de salida también lo dice.</translation>
    </message>
    <message>
        <source>List everything that needs attention. The exit code as with status.</source>
        <translation>Listar todo lo que requiere atención. Código de salida como status.</translation>
    </message>
    <message>
        <source>List consoles, systems, io-servers, partitions, events or groups.</source>
        <translation>Listar consoles, systems, io-servers, partitions, events o groups.</translation>
    </message>
    <message>
        <source>Show every field as a column, not only the usual ones.</source>
        <translation>Mostrar cada campo como columna, no solo los habituales.</translation>
    </message>
    <message>
        <source>Show one object, by identifier, name or number.</source>
        <translation>Mostrar un objeto, por identificador, nombre o número.</translation>
    </message>
    <message>
        <source>List serviceable events.</source>
        <translation>Listar eventos de servicio.</translation>
    </message>
    <message>
        <source>Only open ones.</source>
        <translation>Solo los abiertos.</translation>
    </message>
    <message>
        <source>Only those that are reported to the maker.</source>
        <translation>Solo los que se comunican al fabricante.</translation>
    </message>
    <message>
        <source>sent, newest (as at first), status or code.</source>
        <translation>sent, newest (por defecto), status o code.</translation>
    </message>
    <message>
        <source>Show processors and memory of a system over the last half day.</source>
        <translation>Mostrar procesadores y memoria de un sistema en el último medio día.</translation>
    </message>
    <message>
        <source>With --csv: memory instead of processors.</source>
        <translation>Con --csv: memoria en vez de procesadores.</translation>
    </message>
    <message>
        <source>Read the consoles again and again, and write a line for each change.</source>
        <translation>Leer las consolas una y otra vez, y escribir una línea por cambio.</translation>
    </message>
    <message>
        <source>Minutes between readings, or 30s, 2h; at first as Lodestar&apos;s Watch has it.</source>
        <translation>Minutos entre lecturas, o 30s, 2h; por defecto, como la vigilancia de Lodestar.</translation>
    </message>
    <message>
        <source>End after so many readings.</source>
        <translation>Terminar tras tantas lecturas.</translation>
    </message>
    <message>
        <source>Write how all consoles are as OpenMetrics, for Prometheus.</source>
        <translation>Escribir cómo están todas las consolas en OpenMetrics, para Prometheus.</translation>
    </message>
    <message>
        <source>Replace this file, for a collector of text files; - is standard output.</source>
        <translation>Reemplazar este archivo, para un recolector de archivos de texto; - es la salida estándar.</translation>
    </message>
    <message>
        <source>Serve it at /metrics instead, on this machine only; ADDRESS:PORT, too.</source>
        <translation>Servirlo en /metrics, solo en esta máquina; también DIRECCIÓN:PUERTO.</translation>
    </message>
    <message>
        <source>With --listen: minutes between readings, or 30s, 2h.</source>
        <translation>Con --listen: minutos entre lecturas, o 30s, 2h.</translation>
    </message>
    <message>
        <source>Also its processors and memory; may be repeated.</source>
        <translation>También sus procesadores y memoria; se puede repetir.</translation>
    </message>
    <message>
        <source>List the registered consoles without asking them.</source>
        <translation>Listar las consolas registradas sin preguntarles.</translation>
    </message>
    <message>
        <source>Verify a console and register it.</source>
        <translation>Verificar una consola y registrarla.</translation>
    </message>
    <message>
        <source>Log on as this user.</source>
        <translation>Iniciar sesión como este usuario.</translation>
    </message>
    <message>
        <source>Call it so; the address at first.</source>
        <translation>Llamarla así; por defecto, como la dirección.</translation>
    </message>
    <message>
        <source>Remove a console and what is remembered of it.</source>
        <translation>Quitar una consola y lo que se recuerda de ella.</translation>
    </message>
    <message>
        <source>Verify the consoles of a fleet sheet and register them together; - reads standard input.</source>
        <translation>Verificar las consolas de una hoja y registrarlas juntas; - lee la entrada estándar.</translation>
    </message>
    <message>
        <source>Register none unless all can be.</source>
        <translation>No registrar ninguna si no se puede con todas.</translation>
    </message>
    <message>
        <source>Write the consoles as a fleet sheet, without secrets; - writes standard output.</source>
        <translation>Escribir las consolas como hoja, sin secretos; - escribe en la salida estándar.</translation>
    </message>
    <message>
        <source>The same as consoles list.</source>
        <translation>Lo mismo que consoles list.</translation>
    </message>
    <message>
        <source>%1 did not answer: %2.</source>
        <extracomment>%1 a console, %2 why, as in &quot;connection refused&quot;</extracomment>
        <translation>%1 no respondió: %2.</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>sin conexión</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <extracomment>%1 a console, %2 as in &quot;Partitions not read&quot;</extracomment>
        <translation>%1: %2.</translation>
    </message>
    <message>
        <source>No consoles yet.</source>
        <translation>Aún no hay consolas.</translation>
    </message>
    <message>
        <source>Several consoles are called %1. Name one by its address.</source>
        <translation>Varias consolas se llaman %1. Nombre una por su dirección.</translation>
    </message>
    <message>
        <source>%1 was removed.</source>
        <translation>Se quitó %1.</translation>
    </message>
    <message>
        <source>consoles export writes a fleet sheet; consoles list --json writes JSON.</source>
        <translation>consoles export escribe una hoja; consoles list --json escribe JSON.</translation>
    </message>
    <message>
        <source>Could not be saved: %1</source>
        <translation>No se pudo guardar: %1</translation>
    </message>
    <message numerus="yes">
        <source>Saved %Ln consoles as %1</source>
        <extracomment>%1 the name of a file</extracomment>
        <translation>
            <numerusform>%Ln consola guardada en %1</numerusform>
            <numerusform>%Ln consolas guardadas en %1</numerusform>
        </translation>
    </message>
    <message>
        <source>export takes either --openmetrics FILE or --listen PORT.</source>
        <translation>export pide --openmetrics ARCHIVO o --listen PUERTO.</translation>
    </message>
    <message>
        <source>--every goes with --listen; a file is written once.</source>
        <translation>--every va con --listen; un archivo se escribe una vez.</translation>
    </message>
    <message>
        <source>export writes OpenMetrics.</source>
        <translation>export escribe OpenMetrics.</translation>
    </message>
    <message numerus="yes">
        <source>export takes --system at most %Ln times.</source>
        <translation>
            <numerusform>export admite --system como mucho %Ln vez.</numerusform>
            <numerusform>export admite --system como mucho %Ln veces.</numerusform>
        </translation>
    </message>
    <message>
        <source>The metrics of %1 cannot be had: %2.</source>
        <extracomment>%1 a system, %2 why, as in &quot;connection refused&quot;</extracomment>
        <translation>No se pueden obtener las métricas de %1: %2.</translation>
    </message>
    <message>
        <source>Listening on %1</source>
        <translation>Escuchando en %1</translation>
    </message>
    <message>
        <source>%1 is no file that could be replaced.</source>
        <translation>%1 no es un archivo que se pueda reemplazar.</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>No se puede escribir %1</translation>
    </message>
    <message>
        <source>reading %1 of %2</source>
        <extracomment>numbers of consoles</extracomment>
        <translation>leyendo %1 de %2</translation>
    </message>
    <message>
        <source>%1 was left out: its certificate changed within an attempt. To take the new one, name the console with --console.</source>
        <translation>%1 quedó fuera: su certificado cambió durante un intento. Para tomar el nuevo, nombre la consola con --console.</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>No se puede abrir %1</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>No se puede leer %1</translation>
    </message>
    <message>
        <source>This is not a CSV file: %1.</source>
        <translation>No es un archivo CSV: %1.</translation>
    </message>
    <message>
        <source>registered already, left alone</source>
        <translation>ya registrada, sin cambios</translation>
    </message>
    <message>
        <source>no address</source>
        <translation>sin dirección</translation>
    </message>
    <message>
        <source>no user</source>
        <translation>sin usuario</translation>
    </message>
    <message>
        <source>no address of a console: %1</source>
        <translation>no es dirección de una consola: %1</translation>
    </message>
    <message>
        <source>the same address as row %1</source>
        <translation>misma dirección que la fila %1</translation>
    </message>
    <message>
        <source>Password of %1</source>
        <translation>Contraseña de %1</translation>
    </message>
    <message numerus="yes">
        <source>verifying %1 of %2, about %Ln s left</source>
        <translation>
            <numerusform>verificando %1 de %2, quedan unos %Ln&#xa0;s</numerusform>
            <numerusform>verificando %1 de %2, quedan unos %Ln&#xa0;s</numerusform>
        </translation>
    </message>
    <message>
        <source>verifying %1 of %2</source>
        <translation>verificando %1 de %2</translation>
    </message>
    <message>
        <source>Nothing was added.</source>
        <translation>No se añadió nada.</translation>
    </message>
    <message>
        <source>The column %1 was not read: passwords do not belong in a sheet.</source>
        <translation>La columna %1 no se leyó: las contraseñas no van en una hoja.</translation>
    </message>
    <message>
        <source>The column %1 is not used.</source>
        <translation>La columna %1 no se usa.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles were added.</source>
        <translation>
            <numerusform>Se añadió %Ln consola.</numerusform>
            <numerusform>Se añadieron %Ln consolas.</numerusform>
        </translation>
    </message>
    <message>
        <source>Say as whom to log on with --user.</source>
        <translation>Diga con --user quién inicia sesión.</translation>
    </message>
    <message>
        <source>The address is empty.</source>
        <translation>La dirección está vacía.</translation>
    </message>
    <message>
        <source>Nothing was added: %1.</source>
        <translation>No se añadió nada: %1.</translation>
    </message>
    <message>
        <source>Nothing was added. %1: %2.</source>
        <extracomment>%1 an address, %2 why, as in &quot;connection refused&quot;</extracomment>
        <translation>No se añadió nada. %1: %2.</translation>
    </message>
    <message>
        <source>not verified</source>
        <translation>no verificada</translation>
    </message>
    <message>
        <source>%1 was added.</source>
        <translation>Se añadió %1.</translation>
    </message>
    <message>
        <source>%1 was added, %2.</source>
        <translation>Se añadió %1, %2.</translation>
    </message>
    <message>
        <source>--listen takes a port, or an address and a port as 127.0.0.1:9750, not %1.</source>
        <translation>--listen pide un puerto, o una dirección y un puerto como 127.0.0.1:9750, no %1.</translation>
    </message>
    <message>
        <source>--listen takes an address in numbers, not %1.</source>
        <translation>--listen pide una dirección en números, no %1.</translation>
    </message>
    <message>
        <source>--listen takes no address that other machines reach, such as %1: what it serves is neither encrypted nor guarded. Put a server in front of it that is.</source>
        <translation>--listen no admite direcciones a las que lleguen otras máquinas, como %1: lo que sirve no va cifrado ni protegido. Ponga delante un servidor que sí.</translation>
    </message>
    <message>
        <source>Cannot listen on %1</source>
        <translation>No se puede escuchar en %1</translation>
    </message>
    <message>
        <source>lodestar-cli --help lists all commands.</source>
        <translation>lodestar-cli --help lista todos los comandos.</translation>
    </message>
    <message>
        <source>total processors</source>
        <translation>procesadores en total</translation>
    </message>
    <message>
        <source>allocated processors</source>
        <translation>procesadores asignados</translation>
    </message>
    <message>
        <source>used processors</source>
        <translation>procesadores usados</translation>
    </message>
    <message>
        <source>total memory, GB</source>
        <translation>memoria total, GB</translation>
    </message>
    <message>
        <source>allocated memory, GB</source>
        <translation>memoria asignada, GB</translation>
    </message>
    <message>
        <source>used memory, GB</source>
        <translation>memoria usada, GB</translation>
    </message>
    <message>
        <source>No sample had values.</source>
        <translation>Ninguna muestra tenía valores.</translation>
    </message>
    <message>
        <source>No %1.</source>
        <translation>No hay %1.</translation>
    </message>
    <message>
        <source>No known %1.</source>
        <translation>No se conocen %1.</translation>
    </message>
    <message>
        <source>No open %1.</source>
        <translation>No hay %1 abiertos.</translation>
    </message>
    <message>
        <source>No known open %1.</source>
        <translation>No se conocen %1 abiertos.</translation>
    </message>
    <message>
        <source>No such %1.</source>
        <translation>No hay tales %1.</translation>
    </message>
    <message>
        <source>No known such %1.</source>
        <translation>No se conocen tales %1.</translation>
    </message>
    <message>
        <source>--order takes sent, newest, status or code, not %1.</source>
        <translation>--order pide sent, newest, status o code, no %1.</translation>
    </message>
    <message>
        <source>Nothing of that kind is called %1.</source>
        <translation>Nada de ese tipo se llama %1.</translation>
    </message>
    <message>
        <source>There is no kind %1: consoles, systems, io-servers, partitions, events or groups.</source>
        <extracomment>The kinds are words of the command, which stay as they are</extracomment>
        <translation>No hay tipo %1: consoles, systems, io-servers, partitions, events o groups.</translation>
    </message>
    <message>
        <source>The output cannot be written</source>
        <translation>No se puede escribir la salida</translation>
    </message>
    <message>
        <source>The password cannot be read</source>
        <translation>No se puede leer la contraseña</translation>
    </message>
    <message>
        <source>There is no password.</source>
        <translation>No hay contraseña.</translation>
    </message>
    <message>
        <source>There is no terminal to ask for the password. Give --password-fd N to read it from descriptor N.</source>
        <translation>No hay terminal para pedir la contraseña. Dé --password-fd N para leerla del descriptor N.</translation>
    </message>
    <message>
        <source>Lodestar is open, or another command is at work, in %1. Close it, or name another folder with --data.</source>
        <translation>Lodestar está abierto, u otro comando está en marcha, en %1. Ciérrelo, o nombre otra carpeta con --data.</translation>
    </message>
    <message>
        <source>Lodestar keeps nothing in a folder of another user: %1</source>
        <translation>Lodestar no guarda nada en una carpeta de otro usuario: %1</translation>
    </message>
    <message>
        <source>Lodestar cannot lock its folder: Lodestar.lock in %1 is no file of yours.</source>
        <translation>Lodestar no puede bloquear su carpeta: Lodestar.lock en %1 no es un archivo suyo.</translation>
    </message>
    <message>
        <source>The disk can only be read.</source>
        <translation>El disco solo se puede leer.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>El disco está lleno.</translation>
    </message>
    <message>
        <source>There is no home folder. Name a data folder with --data.</source>
        <translation>No hay carpeta personal. Nombre una carpeta de datos con --data.</translation>
    </message>
    <message>
        <source>There is no data folder. %1</source>
        <translation>No hay carpeta de datos. %1</translation>
    </message>
    <message>
        <source>A reset of Lodestar was cut short. Open Lodestar once to finish it.</source>
        <translation>Se interrumpió un restablecimiento de Lodestar. Abra Lodestar una vez para terminarlo.</translation>
    </message>
    <message>
        <source>The consoles in %1 cannot be read. %2</source>
        <extracomment>%1 a folder, %2 a sentence that tells why</extracomment>
        <translation>No se pueden leer las consolas en %1. %2</translation>
    </message>
    <message>
        <source>No console is called %1.</source>
        <translation>Ninguna consola se llama %1.</translation>
    </message>
    <message>
        <source>The history was damaged. It was set aside as %1, and a new one was begun. Earlier changes are missing.</source>
        <translation>El historial estaba dañado. Se apartó como %1 y se empezó uno nuevo. Faltan los cambios anteriores.</translation>
    </message>
    <message>
        <source>Nothing was stored. %1</source>
        <translation>No se guardó nada. %1</translation>
    </message>
    <message>
        <source>No consoles yet. Add one with: %1</source>
        <translation>Aún no hay consolas. Añada una con: %1</translation>
    </message>
    <message>
        <source>left out, its certificate changed</source>
        <translation>fuera, su certificado cambió</translation>
    </message>
    <message>
        <source>offline since %1</source>
        <translation>sin conexión desde %1</translation>
    </message>
    <message>
        <source>Several systems are called %1. Name one by its identifier, or its console with --console.</source>
        <translation>Varios sistemas se llaman %1. Nombre uno por su identificador, o su consola con --console.</translation>
    </message>
    <message>
        <source>No system is called %1.</source>
        <translation>Ningún sistema se llama %1.</translation>
    </message>
    <message>
        <source>--times takes a number from 1 on.</source>
        <translation>--times pide un número desde 1.</translation>
    </message>
    <message>
        <source>watch writes lines of text, or of JSON with --json.</source>
        <translation>watch escribe líneas de texto, o de JSON con --json.</translation>
    </message>
    <message>
        <source>There are no consoles to watch.</source>
        <translation>No hay consolas que vigilar.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 %2 %3</source>
        <extracomment>%1 the day of a month, %2 the short name of the month, %3 a year</extracomment>
        <translation>%1 %2 %3</translation>
    </message>
    <message>
        <source>Row %1: %2.</source>
        <extracomment>%1 the number of a sheet&apos;s row, %2 what is wrong with it</extracomment>
        <translation>Fila %1: %2.</translation>
    </message>
    <message>
        <source>The password is too long.</source>
        <translation>La contraseña es demasiado larga.</translation>
    </message>
</context>
<context>
    <name>ConnectionCard</name>
    <message>
        <source>Refresh This Console</source>
        <translation>Actualizar esta consola</translation>
    </message>
    <message>
        <source>updating...</source>
        <translation>leyendo...</translation>
    </message>
</context>
<context>
    <name>ConnectionScene</name>
    <message>
        <source>Copy all</source>
        <translation>Copiar todo</translation>
    </message>
</context>
<context>
    <name>CorvelListDelegate</name>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Atención</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Eventos</translation>
    </message>
</context>
<context>
    <name>CorvelListScene</name>
    <message>
        <source>Feedback</source>
        <translation>Comentarios</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Add console</source>
        <translation>Añadir consola</translation>
    </message>
    <message>
        <source>Fleet Sheet</source>
        <translation>Hoja de consolas</translation>
    </message>
    <message>
        <source>No console of your own yet.</source>
        <translation>Aún no hay ninguna consola suya.</translation>
    </message>
</context>
<context>
    <name>DashboardScene</name>
    <message>
        <source>Corvel Overview</source>
        <translation>Resumen de Corvel</translation>
    </message>
    <message>
        <source>Corvels Online</source>
        <translation>Corvels en línea</translation>
    </message>
    <message>
        <source>Attention LEDs</source>
        <translation>LED de atención</translation>
    </message>
    <message>
        <source>Serviceable Events</source>
        <translation>Eventos de servicio</translation>
    </message>
    <message>
        <source>Managed Systems</source>
        <translation>Sistemas gestionados</translation>
    </message>
    <message>
        <source>No managed systems are known.</source>
        <translation>No se conoce ningún sistema gestionado.</translation>
    </message>
    <message>
        <source>Logical Partitions</source>
        <translation>Particiones lógicas</translation>
    </message>
    <message>
        <source>No logical partitions are known.</source>
        <translation>No se conoce ninguna partición lógica.</translation>
    </message>
    <message>
        <source>No consoles yet.</source>
        <translation>Aún no hay consolas.</translation>
    </message>
    <message>
        <source>Add Corvel</source>
        <translation>Añadir Corvel</translation>
    </message>
</context>
<context>
    <name>DeltaCorvelScene</name>
    <message>
        <source>Leave out &quot;%1&quot;.</source>
        <translation>Quite «%1».</translation>
    </message>
    <message>
        <source>Leave out &quot;/&quot; and what follows it.</source>
        <translation>Quite «/» y lo que sigue.</translation>
    </message>
    <message>
        <source>The address contains a blank.</source>
        <translation>La dirección contiene un espacio.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Host name or address</source>
        <translation>Nombre de equipo o dirección</translation>
    </message>
    <message>
        <source>User ID</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
</context>
<context>
    <name>DetailScene</name>
    <message>
        <source>Service report</source>
        <translation>Informe de servicio</translation>
    </message>
</context>
<context>
    <name>EditMenuChoices</name>
    <message>
        <source>Edit text</source>
        <translation>Editar texto</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
</context>
<context>
    <name>EmptyColumn</name>
    <message>
        <source>Choose what to look at.</source>
        <translation>Elija qué quiere ver.</translation>
    </message>
</context>
<context>
    <name>ErrorWords</name>
    <message>
        <source>this is the name of a folder.</source>
        <translation>es el nombre de una carpeta.</translation>
    </message>
    <message>
        <source>this is the name of a device.</source>
        <translation>es el nombre de un dispositivo.</translation>
    </message>
    <message>
        <source>the folder does not exist.</source>
        <translation>la carpeta no existe.</translation>
    </message>
    <message>
        <source>the disk is full.</source>
        <translation>el disco está lleno.</translation>
    </message>
    <message>
        <source>you may not write there.</source>
        <translation>no puede escribir ahí.</translation>
    </message>
    <message>
        <source>the file is too large for the disk.</source>
        <translation>el archivo es demasiado grande para el disco.</translation>
    </message>
    <message>
        <source>the name is too long.</source>
        <translation>el nombre es demasiado largo.</translation>
    </message>
    <message>
        <source>this place is not on this device.</source>
        <translation>este lugar no está en este dispositivo.</translation>
    </message>
    <message>
        <source>this system shows no dialogue for files.</source>
        <translation>este sistema no muestra diálogos de archivos.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>No existe ese archivo.</translation>
    </message>
    <message>
        <source>This is not a file.</source>
        <translation>No es un archivo.</translation>
    </message>
    <message>
        <source>This file cannot be read.</source>
        <translation>Este archivo no se puede leer.</translation>
    </message>
    <message>
        <source>This file is too large.</source>
        <translation>Este archivo es demasiado grande.</translation>
    </message>
    <message>
        <source>This system shows no dialogue for files.</source>
        <translation>Este sistema no muestra diálogos de archivos.</translation>
    </message>
    <message>
        <source>The request was cancelled.</source>
        <translation>La petición se canceló.</translation>
    </message>
    <message>
        <source>The address is not valid.</source>
        <translation>La dirección no es válida.</translation>
    </message>
    <message>
        <source>No answer came in time. Check the network.</source>
        <translation>No llegó respuesta a tiempo. Compruebe la red.</translation>
    </message>
    <message>
        <source>The name has no address. Check the spelling.</source>
        <translation>El nombre no tiene dirección. Compruebe cómo está escrito.</translation>
    </message>
    <message>
        <source>This address cannot be reached.</source>
        <translation>No se puede llegar a esta dirección.</translation>
    </message>
    <message>
        <source>The connection broke off. Try again.</source>
        <translation>La conexión se cortó. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The answer was not understood.</source>
        <translation>La respuesta no se entendió.</translation>
    </message>
    <message>
        <source>The answer is larger than Lodestar takes.</source>
        <translation>La respuesta es mayor de lo que Lodestar admite.</translation>
    </message>
    <message>
        <source>No secure connection can be made.</source>
        <translation>No es posible una conexión segura.</translation>
    </message>
    <message>
        <source>The certificate is not trusted.</source>
        <translation>El certificado no es de confianza.</translation>
    </message>
    <message>
        <source>The request failed.</source>
        <translation>La petición falló.</translation>
    </message>
    <message>
        <source>The console did not accept user or password.</source>
        <translation>La consola no aceptó el usuario o la contraseña.</translation>
    </message>
    <message>
        <source>The console has an error. Try again.</source>
        <translation>La consola tiene un error. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The address does not answer as a console.</source>
        <translation>En esa dirección no responde una consola.</translation>
    </message>
</context>
<context>
    <name>EventBars</name>
    <message>
        <source>New Events a Day</source>
        <translation>Eventos nuevos por día</translation>
    </message>
    <message numerus="yes">
        <source>%Ln days</source>
        <translation>
            <numerusform>%Ln día</numerusform>
            <numerusform>%Ln días</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>EventOrderScene</name>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abiertos</translation>
    </message>
    <message>
        <source>Call home</source>
        <translation>Aviso al fabricante</translation>
    </message>
</context>
<context>
    <name>FeedListScene</name>
    <message>
        <source>Search results</source>
        <translation>Resultados</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>Nada encontrado.</translation>
    </message>
</context>
<context>
    <name>FeedListViewController</name>
    <message>
        <source>Logical Partitions</source>
        <translation>Particiones lógicas</translation>
    </message>
    <message>
        <source>Partitions could not be loaded. Refresh to try again.</source>
        <translation>No se pudieron cargar las particiones. Actualice para reintentar.</translation>
    </message>
    <message>
        <source>There are no partitions here.</source>
        <translation>Aquí no hay particiones.</translation>
    </message>
    <message>
        <source>Managed Systems</source>
        <translation>Sistemas gestionados</translation>
    </message>
    <message>
        <source>Managed systems could not be loaded. Refresh to try again.</source>
        <translation>No se pudieron cargar los sistemas gestionados. Actualice para reintentar.</translation>
    </message>
    <message>
        <source>This console manages no systems.</source>
        <translation>Esta consola no gestiona sistemas.</translation>
    </message>
    <message>
        <source>Resource Groups</source>
        <translation>Grupos de recursos</translation>
    </message>
    <message>
        <source>Resource groups could not be loaded. Refresh to try again.</source>
        <translation>No se pudieron cargar los grupos de recursos. Actualice para reintentar.</translation>
    </message>
    <message>
        <source>This console has no resource groups.</source>
        <translation>Esta consola no tiene grupos de recursos.</translation>
    </message>
    <message>
        <source>Serviceable Events</source>
        <translation>Eventos de servicio</translation>
    </message>
    <message>
        <source>Serviceable events could not be loaded. Refresh to try again.</source>
        <translation>No se pudieron cargar los eventos de servicio. Actualice para reintentar.</translation>
    </message>
    <message>
        <source>This console has no serviceable events.</source>
        <translation>Esta consola no tiene eventos de servicio.</translation>
    </message>
    <message>
        <source>Virtual IO Servers</source>
        <translation>Servidores E/S virtuales</translation>
    </message>
    <message>
        <source>Virtual servers could not be loaded. Refresh to try again.</source>
        <translation>No se pudieron cargar los servidores virtuales. Actualice para reintentar.</translation>
    </message>
    <message>
        <source>Nothing in sight</source>
        <translation>Nada a la vista</translation>
    </message>
    <message>
        <source>There are no virtual servers here.</source>
        <translation>Aquí no hay servidores virtuales.</translation>
    </message>
</context>
<context>
    <name>FeedbackLayer</name>
    <message>
        <source>Feedback</source>
        <translation>Comentarios</translation>
    </message>
</context>
<context>
    <name>FeedbackScene</name>
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Amarillo</translation>
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
        <source>Black</source>
        <translation>Negro</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Picture of the screen, to draw on</source>
        <translation>Imagen de la pantalla, para dibujar</translation>
    </message>
    <message>
        <source>Pen</source>
        <translation>Lápiz</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Tapar</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>What happened?</source>
        <translation>¿Qué ha pasado?</translation>
    </message>
    <message>
        <source>Addresses are covered before the picture is shown. Passwords are never part of it.</source>
        <translation>Las direcciones se tapan antes de mostrar la imagen. Las contraseñas nunca figuran en ella.</translation>
    </message>
    <message>
        <source>Addresses are covered before the picture is shown. Passwords are never part of it. The report stays on this device.</source>
        <translation>Las direcciones se tapan antes de mostrar la imagen. Las contraseñas nunca figuran en ella. El informe queda en este dispositivo.</translation>
    </message>
    <message>
        <source>What is sent</source>
        <translation>Qué se envía</translation>
    </message>
    <message>
        <source>What is saved</source>
        <translation>Qué se guarda</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Informes</translation>
    </message>
</context>
<context>
    <name>FilePicker</name>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>FindButton</name>
    <message>
        <source>Find anywhere</source>
        <translation>Buscar en todo</translation>
    </message>
</context>
<context>
    <name>FindScene</name>
    <message>
        <source>Find on all consoles</source>
        <translation>Buscar en todo</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
</context>
<context>
    <name>FirstRun</name>
    <message>
        <source>No consoles yet.</source>
        <translation>Aún no hay consolas.</translation>
    </message>
    <message>
        <source>Look at the Demo First</source>
        <translation>Ver primero la demo</translation>
    </message>
</context>
<context>
    <name>FirstSteps</name>
    <message>
        <source>Give the address, user and password of one. Lodestar only reads; nothing on a console is ever changed.</source>
        <translation>Indique la dirección, el usuario y la contraseña de una. Lodestar solo lee; nunca cambia nada en una consola.</translation>
    </message>
    <message>
        <source>Add Corvel</source>
        <translation>Añadir Corvel</translation>
    </message>
    <message>
        <source>Import Fleet Sheet</source>
        <translation>Importar hoja de consolas</translation>
    </message>
</context>
<context>
    <name>FleetAgainScene</name>
    <message>
        <source>Verify</source>
        <translation>Verificar</translation>
    </message>
    <message>
        <source>A field that stays empty keeps its password.</source>
        <translation>Un campo vacío conserva su contraseña.</translation>
    </message>
</context>
<context>
    <name>FleetChooseScene</name>
    <message>
        <source>In this sheet</source>
        <translation>En esta hoja</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuevas</translation>
    </message>
    <message>
        <source>Registered already, left alone</source>
        <translation>Ya registradas, sin cambios</translation>
    </message>
    <message>
        <source>Cannot be used</source>
        <translation>No utilizables</translation>
    </message>
    <message>
        <source>Passwords, one a user</source>
        <translation>Contraseñas</translation>
    </message>
    <message>
        <source>Passwords are never read from a sheet nor written to one.</source>
        <translation>Las contraseñas nunca se leen de una hoja ni se escriben en ella.</translation>
    </message>
    <message>
        <source>Nothing is added before all of them were tried.</source>
        <translation>No se añade nada hasta haber probado todas.</translation>
    </message>
</context>
<context>
    <name>FleetEventsBar</name>
    <message>
        <source>Order</source>
        <translation>Orden</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
</context>
<context>
    <name>FleetEventsContent</name>
    <message>
        <source>Search results</source>
        <translation>Resultados</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>Nada encontrado.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
</context>
<context>
    <name>FleetEventsHeader</name>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
</context>
<context>
    <name>FleetPasswordCard</name>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Show More Users</source>
        <translation>Mostrar más usuarios</translation>
    </message>
</context>
<context>
    <name>FleetSheetScene</name>
    <message>
        <source>Import Consoles from a Sheet</source>
        <translation>Importar consolas de una hoja</translation>
    </message>
    <message>
        <source>A sheet is a CSV file with a first line, for example:</source>
        <translation>Una hoja es un archivo CSV con una línea de títulos, por ejemplo:</translation>
    </message>
    <message>
        <source>Passwords are asked once a user. They are never read from a sheet nor written to one.</source>
        <translation>Las contraseñas se piden una vez por usuario. Nunca se leen de una hoja ni se escriben en ella.</translation>
    </message>
    <message>
        <source>Look at the Demo</source>
        <translation>Ver la demo</translation>
    </message>
    <message>
        <source>A console that is part of Lodestar. It needs no network.</source>
        <translation>Una consola que viene con Lodestar. No necesita red.</translation>
    </message>
</context>
<context>
    <name>FleetVerifyHeader</name>
    <message>
        <source>Verified</source>
        <translation>Verificadas</translation>
    </message>
    <message>
        <source>Not verified</source>
        <translation>No verificadas</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>en espera</translation>
    </message>
</context>
<context>
    <name>FleetVerifyScene</name>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>FoldedListScene</name>
    <message>
        <source>Nothing left to show</source>
        <translation>No queda nada que mostrar</translation>
    </message>
</context>
<context>
    <name>IntroView</name>
    <message>
        <source>Every console, one list</source>
        <translation>Todas las consolas, una lista</translation>
    </message>
    <message>
        <source>Health, attention LEDs and events of your whole fleet, refreshed with one pull.</source>
        <translation>Estado, LED de atención y eventos de todas sus consolas, actualizados con un gesto.</translation>
    </message>
    <message>
        <source>The sum of it all</source>
        <translation>La suma de todo</translation>
    </message>
    <message>
        <source>The dashboard adds up managed systems and partitions by their state.</source>
        <translation>El panel cuenta sistemas gestionados y particiones según su estado.</translation>
    </message>
    <message>
        <source>Every managed system</source>
        <translation>Cada sistema gestionado</translation>
    </message>
    <message>
        <source>Find a system by name. Badges tell errors and lit attention LEDs.</source>
        <translation>Encuentre un sistema por su nombre. Las insignias indican errores y LED de atención encendidos.</translation>
    </message>
    <message>
        <source>Down to the partition</source>
        <translation>Hasta la partición</translation>
    </message>
    <message>
        <source>Partitions and virtual I/O servers stand under the system that runs them.</source>
        <translation>Particiones y servidores E/S virtuales figuran bajo el sistema que los ejecuta.</translation>
    </message>
    <message>
        <source>Load over time</source>
        <translation>La carga en el tiempo</translation>
    </message>
    <message>
        <source>Processors and memory of a system, total, allocated and used, as lines.</source>
        <translation>Procesadores y memoria de un sistema, total, asignado y usado, en líneas.</translation>
    </message>
    <message>
        <source>Behind a passcode</source>
        <translation>Protegido con código</translation>
    </message>
    <message>
        <source>Lock Lodestar if you like. It reads only and changes nothing on a console.</source>
        <translation>Bloquee Lodestar si quiere. Solo lee y no cambia nada en una consola.</translation>
    </message>
</context>
<context>
    <name>KeySheetScene</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Find a command</source>
        <translation>Buscar un comando</translation>
    </message>
</context>
<context>
    <name>KeyTable</name>
    <message>
        <source>Refresh</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Save list as CSV</source>
        <translation>Guardar lista en CSV</translation>
    </message>
    <message>
        <source>Save points as CSV</source>
        <translation>Guardar puntos en CSV</translation>
    </message>
    <message>
        <source>Copy value</source>
        <translation>Copiar valor</translation>
    </message>
    <message>
        <source>Copy all</source>
        <translation>Copiar todo</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Keyboard help</source>
        <translation>Ayuda del teclado</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Comandos</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Next or previous control</source>
        <translation>Control siguiente o anterior</translation>
    </message>
    <message>
        <source>Next or previous row</source>
        <translation>Fila siguiente o anterior</translation>
    </message>
    <message>
        <source>A page up or down</source>
        <translation>Una página arriba o abajo</translation>
    </message>
    <message>
        <source>First or last row</source>
        <translation>Primera o última fila</translation>
    </message>
    <message>
        <source>Open the row</source>
        <translation>Abrir la fila</translation>
    </message>
    <message>
        <source>Menu of the row</source>
        <translation>Menú de la fila</translation>
    </message>
    <message>
        <source>Buttons of the row</source>
        <translation>Botones de la fila</translation>
    </message>
    <message>
        <source>Step along the chart</source>
        <translation>Avanzar por el gráfico</translation>
    </message>
    <message>
        <source>Enlarge or shrink</source>
        <translation>Ampliar o reducir</translation>
    </message>
    <message>
        <source>The whole chart</source>
        <translation>El gráfico entero</translation>
    </message>
    <message>
        <source>Add console</source>
        <translation>Añadir consola</translation>
    </message>
    <message>
        <source>Find anywhere</source>
        <translation>Buscar en todo</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Feedback</source>
        <translation>Comentarios</translation>
    </message>
    <message>
        <source>Corvels</source>
        <translation>Corvels</translation>
    </message>
    <message>
        <source>Dashboard</source>
        <translation>Panel</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Atención</translation>
    </message>
    <message>
        <source>The other column</source>
        <translation>La otra columna</translation>
    </message>
    <message>
        <source>First or last value</source>
        <translation>Primer o último valor</translation>
    </message>
    <message>
        <source>Move the enlarged chart</source>
        <translation>Mover el gráfico ampliado</translation>
    </message>
</context>
<context>
    <name>KeychainWait</name>
    <message>
        <source>Waiting for the system&apos;s keychain...</source>
        <translation>Esperando al llavero del sistema...</translation>
    </message>
</context>
<context>
    <name>LargeChartScene</name>
    <message>
        <source>Performance Monitoring</source>
        <translation>Rendimiento</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Compartir</translation>
    </message>
    <message>
        <source>Processors</source>
        <translation>Procesadores</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>Metrics</source>
        <translation>Métricas</translation>
    </message>
    <message>
        <source>Bars</source>
        <translation>Barras</translation>
    </message>
    <message>
        <source>Allocated as bars</source>
        <translation>Asignado en barras</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Mostrar todo</translation>
    </message>
</context>
<context>
    <name>ListShareButton</name>
    <message>
        <source>Save list as CSV</source>
        <translation>Guardar lista en CSV</translation>
    </message>
</context>
<context>
    <name>LoginScene</name>
    <message>
        <source>Lodestar</source>
        <translation>Lodestar</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>Entrar</translation>
    </message>
    <message>
        <source>Reset Passcode and Erase All Data</source>
        <translation>Restablecer el código y borrar todo</translation>
    </message>
</context>
<context>
    <name>MCScene</name>
    <message>
        <source>This console has told nothing of itself.</source>
        <translation>Esta consola no ha dicho nada de sí misma.</translation>
    </message>
</context>
<context>
    <name>MainStoryboard</name>
    <message>
        <source>Corvels</source>
        <translation>Corvels</translation>
    </message>
    <message>
        <source>Dashboard</source>
        <translation>Panel</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Atención</translation>
    </message>
</context>
<context>
    <name>NavigationBar</name>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
</context>
<context>
    <name>PCMScene</name>
    <message>
        <source>units</source>
        <translation>unidades</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>GB</translation>
    </message>
    <message>
        <source>Performance Monitoring</source>
        <translation>Rendimiento</translation>
    </message>
    <message>
        <source>Large Chart</source>
        <translation>Gráfico grande</translation>
    </message>
    <message>
        <source>Processors</source>
        <translation>Procesadores</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>Metrics</source>
        <translation>Métricas</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Allocated</source>
        <translation>Asignado</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Usado</translation>
    </message>
</context>
<context>
    <name>PageControl</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
</context>
<context>
    <name>PagedIntroView</name>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Omitir</translation>
    </message>
</context>
<context>
    <name>Passcode</name>
    <message>
        <source>The system&apos;s keychain is locked</source>
        <translation>El llavero del sistema está bloqueado</translation>
    </message>
    <message>
        <source>No keychain is running on this system</source>
        <translation>No hay un llavero en marcha en este sistema</translation>
    </message>
    <message>
        <source>The system&apos;s keychain does not answer</source>
        <translation>El llavero del sistema no responde</translation>
    </message>
    <message>
        <source>The system&apos;s keychain cannot keep this text</source>
        <translation>El llavero del sistema no puede guardar este texto</translation>
    </message>
    <message>
        <source>The system&apos;s keychain reported an error</source>
        <translation>El llavero del sistema dio un error</translation>
    </message>
    <message>
        <source>The passcode is not asked for any more: the system&apos;s keychain was locked.</source>
        <translation>Ya no se pide el código: el llavero del sistema estaba bloqueado.</translation>
    </message>
    <message>
        <source>The passcode is not asked for any more: no keychain was running.</source>
        <translation>Ya no se pide el código: no había un llavero en marcha.</translation>
    </message>
    <message>
        <source>The passcode is not asked for any more: the system&apos;s keychain did not answer.</source>
        <translation>Ya no se pide el código: el llavero del sistema no respondió.</translation>
    </message>
    <message>
        <source>The passcode is not asked for any more: the system&apos;s keychain could not be read.</source>
        <translation>Ya no se pide el código: no se pudo leer el llavero del sistema.</translation>
    </message>
</context>
<context>
    <name>PasswordCreationScene</name>
    <message>
        <source>Old passcode</source>
        <translation>Código anterior</translation>
    </message>
    <message>
        <source>New passcode</source>
        <translation>Código nuevo</translation>
    </message>
    <message>
        <source>Verify passcode</source>
        <translation>Confirmar código</translation>
    </message>
</context>
<context>
    <name>PerformanceSummary</name>
    <message>
        <source>Lowest</source>
        <translation>Mín.</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>Highest</source>
        <translation>Máx.</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Último</translation>
    </message>
</context>
<context>
    <name>PrivacyCoverScene</name>
    <message>
        <source>Lodestar</source>
        <translation>Lodestar</translation>
    </message>
</context>
<context>
    <name>PullIndicatorMark</name>
    <message>
        <source>Refreshing</source>
        <translation>Actualizando</translation>
    </message>
    <message>
        <source>Pull to refresh</source>
        <translation>Tirar para actualizar</translation>
    </message>
</context>
<context>
    <name>PullSearchField</name>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
</context>
<context>
    <name>RGListDelegate</name>
    <message>
        <source>updating...</source>
        <translation>leyendo...</translation>
    </message>
</context>
<context>
    <name>ReportListScene</name>
    <message>
        <source>No reports on this device.</source>
        <translation>No hay informes en este dispositivo.</translation>
    </message>
</context>
<context>
    <name>ReportScene</name>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Picture of the screen</source>
        <translation>Imagen de la pantalla</translation>
    </message>
</context>
<context>
    <name>Reports</name>
    <message>
        <source>Sending the report...</source>
        <translation>Enviando el informe...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Waiting for the answer...</source>
        <translation>Esperando la respuesta...</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Report Sent</source>
        <translation>Informe enviado</translation>
    </message>
    <message>
        <source>Thank you. A copy is in the list of reports.</source>
        <translation>Gracias. Hay una copia en la lista de informes.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The report could not be sent</source>
        <translation>No se pudo enviar el informe</translation>
    </message>
    <message>
        <source>%1
It is kept in the list of reports.</source>
        <translation>%1
Queda en la lista de informes.</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Crash</source>
        <translation>Fallo</translation>
    </message>
    <message>
        <source>Feedback</source>
        <translation>Comentarios</translation>
    </message>
</context>
<context>
    <name>SearchBar</name>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
</context>
<context>
    <name>SecretSwitch</name>
    <message>
        <source>Hide password</source>
        <translation>Ocultar contraseña</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Mostrar contraseña</translation>
    </message>
</context>
<context>
    <name>ServiceReportScene</name>
    <message>
        <source>Form of the report</source>
        <translation>Forma del informe</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Markdown</source>
        <translation>Markdown</translation>
    </message>
    <message>
        <source>Leave Out Addresses</source>
        <translation>Sin direcciones</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Save as File</source>
        <translation>Guardar archivo</translation>
    </message>
</context>
<context>
    <name>SettingsScene</name>
    <message>
        <source>Require Passcode</source>
        <translation>Pedir código</translation>
    </message>
    <message>
        <source>Change Passcode</source>
        <translation>Cambiar código</translation>
    </message>
    <message>
        <source>Intro Tour</source>
        <translation>Presentación</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Open Source Licenses</source>
        <translation>Licencias de código abierto</translation>
    </message>
    <message>
        <source>Ornis License</source>
        <translation>Licencia de Ornis</translation>
    </message>
</context>
<context>
    <name>SheetContent</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
</context>
<context>
    <name>Spinner</name>
    <message>
        <source>Loading</source>
        <translation>Cargando</translation>
    </message>
</context>
<context>
    <name>StateBars</name>
    <message>
        <source>Partitions by State</source>
        <translation>Particiones por estado</translation>
    </message>
    <message>
        <source>and since yesterday</source>
        <translation>y desde ayer</translation>
    </message>
</context>
<context>
    <name>SwipeButtons</name>
    <message>
        <source>Actions</source>
        <translation>Acciones</translation>
    </message>
</context>
<context>
    <name>TabBar</name>
    <message>
        <source>Screens</source>
        <translation>Pantallas</translation>
    </message>
</context>
<context>
    <name>WatchConsoleDelegate</name>
    <message>
        <source>watched</source>
        <translation>vigilada</translation>
    </message>
    <message>
        <source>not watched</source>
        <translation>sin vigilar</translation>
    </message>
</context>
<context>
    <name>WatchScene</name>
    <message>
        <source>Watch While Lodestar Runs</source>
        <translation>Vigilar mientras Lodestar funcione</translation>
    </message>
    <message>
        <source>Reads every console again by itself and tells you what changed. It stops when Lodestar is closed.</source>
        <translation>Vuelve a leer todas las consolas por sí mismo y dice qué ha cambiado. Se detiene al cerrar Lodestar.</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>Intervalo</translation>
    </message>
    <message>
        <source>Tell me</source>
        <translation>Avisar</translation>
    </message>
    <message>
        <source>When Something Gets Worse</source>
        <translation>Cuando algo empeora</translation>
    </message>
    <message>
        <source>When It Gets Better Again</source>
        <translation>Cuando vuelve a mejorar</translation>
    </message>
    <message>
        <source>New Events</source>
        <translation>Eventos nuevos</translation>
    </message>
    <message>
        <source>Consoles</source>
        <translation>Consolas</translation>
    </message>
    <message>
        <source>Quiet Hours</source>
        <translation>Horas de silencio</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Desde</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>Hasta</translation>
    </message>
    <message>
        <source>Send a Test Message</source>
        <translation>Enviar mensaje de prueba</translation>
    </message>
    <message>
        <source>At most one message a refresh. Names, addresses and texts stay out of it while a passcode is required.</source>
        <translation>Como mucho un mensaje por actualización. Nombres, direcciones y textos quedan fuera mientras se pida un código.</translation>
    </message>
</context>
<context>
    <name>WatchTimeRow</name>
    <message>
        <source>Left and right change the time.</source>
        <translation>Izquierda y derecha cambian la hora.</translation>
    </message>
    <message>
        <source>%1, earlier</source>
        <translation>%1, antes</translation>
    </message>
    <message>
        <source>%1, later</source>
        <translation>%1, después</translation>
    </message>
</context>
<context>
    <name>lodestar::AgeText</name>
    <message>
        <source>just now</source>
        <translation>ahora mismo</translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>ayer</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>%1 a day as in &quot;yesterday&quot; or &quot;Mon&quot;, %2 a time of day</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>today, %1</source>
        <extracomment>%1 a time of day</extracomment>
        <translation>hoy, %1</translation>
    </message>
    <message>
        <source>since %1</source>
        <extracomment>%1 as in &quot;09:41&quot;, &quot;yesterday 21:40&quot; or &quot;3 Mar&quot;</extracomment>
        <translation>desde %1</translation>
    </message>
    <message>
        <source>at least since %1</source>
        <translation>al menos desde %1</translation>
    </message>
    <message>
        <source>read %1</source>
        <extracomment>%1 as in &quot;2 min ago&quot; or &quot;yesterday 21:40&quot;</extracomment>
        <translation>leído %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln min ago</source>
        <translation>
            <numerusform>hace %Ln&#xa0;min</numerusform>
            <numerusform>hace %Ln&#xa0;min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>read %Ln h ago</source>
        <translation>
            <numerusform>leído hace %Ln&#xa0;h</numerusform>
            <numerusform>leído hace %Ln&#xa0;h</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::AttentionFilterController</name>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message numerus="yes">
        <source>All %Ln consoles</source>
        <translation>
            <numerusform>%Ln consola, todas</numerusform>
            <numerusform>Las %Ln consolas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::AttentionNowController</name>
    <message>
        <source>Nothing needs attention</source>
        <translation>Nada requiere atención</translation>
    </message>
    <message>
        <source>Nothing known needs attention</source>
        <translation>Nada conocido requiere atención</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Show all %1</source>
        <extracomment>%1 a number of rows</extracomment>
        <translation>Mostrar todo (%1)</translation>
    </message>
</context>
<context>
    <name>lodestar::AttentionViewController</name>
    <message>
        <source>99+</source>
        <extracomment>%1 the name of a tab</extracomment>
        <translation>99+</translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln things</source>
        <translation>
            <numerusform>%1, %Ln asunto</numerusform>
            <numerusform>%1, %Ln asuntos</numerusform>
        </translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Atención</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>The name of a file: the tab &quot;Attention&quot; and what of it</extracomment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>lodestar::BarButtonOutlet</name>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualizar</translation>
    </message>
</context>
<context>
    <name>lodestar::ChangeText</name>
    <message>
        <source>#%1 opened</source>
        <translation>#%1 abierto</translation>
    </message>
    <message>
        <source>#%1 gone</source>
        <translation>#%1 ya no está</translation>
    </message>
    <message>
        <source>#%1</source>
        <translation>#%1</translation>
    </message>
    <message>
        <source>LED on</source>
        <translation>LED encendido</translation>
    </message>
    <message>
        <source>LED off</source>
        <translation>LED apagado</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Sin conexión</translation>
    </message>
    <message>
        <source>Online again after %1</source>
        <translation>De nuevo en línea tras %1</translation>
    </message>
    <message>
        <source>%1 not read</source>
        <translation>%1 sin leer</translation>
    </message>
    <message>
        <source>%1 read again</source>
        <translation>%1 de nuevo disponibles</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>Gone</source>
        <translation>Ya no está</translation>
    </message>
    <message>
        <source>Certificate changed</source>
        <translation>Certificado cambiado</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <extracomment>A state before and after.</extracomment>
        <translation>de %1 a %2</translation>
    </message>
    <message>
        <source>worse</source>
        <translation>peor</translation>
    </message>
    <message>
        <source>better</source>
        <translation>mejor</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>Hours and minutes.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ayer</translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles</source>
        <translation>
            <numerusform>%Ln consola</numerusform>
            <numerusform>%Ln consolas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln events opened</source>
        <translation>
            <numerusform>%Ln evento abierto</numerusform>
            <numerusform>%Ln eventos abiertos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln events gone</source>
        <translation>
            <numerusform>%Ln evento ya no está</numerusform>
            <numerusform>%Ln eventos ya no están</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln systems</source>
        <translation>
            <numerusform>%Ln sistema</numerusform>
            <numerusform>%Ln sistemas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln IO servers</source>
        <translation>
            <numerusform>%Ln servidor E/S</numerusform>
            <numerusform>%Ln servidores E/S</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln groups</source>
        <translation>
            <numerusform>%Ln grupo</numerusform>
            <numerusform>%Ln grupos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln events</source>
        <translation>
            <numerusform>%Ln evento</numerusform>
            <numerusform>%Ln eventos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln partitions</source>
        <translation>
            <numerusform>%Ln partición</numerusform>
            <numerusform>%Ln particiones</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln min</source>
        <translation>
            <numerusform>%Ln&#xa0;min</numerusform>
            <numerusform>%Ln&#xa0;min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln days</source>
        <translation>
            <numerusform>%Ln día</numerusform>
            <numerusform>%Ln días</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln h</source>
        <translation>
            <numerusform>%Ln&#xa0;h</numerusform>
            <numerusform>%Ln&#xa0;h</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::ChangesViewController</name>
    <message>
        <source>Changes</source>
        <translation>Cambios</translation>
    </message>
    <message>
        <source>Nothing left to show</source>
        <translation>No queda nada que mostrar</translation>
    </message>
    <message>
        <source>Nothing changed in 30 days.</source>
        <translation>Nada ha cambiado en 30 días.</translation>
    </message>
    <message>
        <source>Changes show after the second reading.</source>
        <translation>Los cambios aparecen tras la segunda lectura.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more changes are not shown.</source>
        <translation>
            <numerusform>%Ln cambio más no se muestra.</numerusform>
            <numerusform>%Ln cambios más no se muestran.</numerusform>
        </translation>
    </message>
    <message>
        <source>Older changes were left out</source>
        <translation>Se omitieron cambios más antiguos</translation>
    </message>
    <message>
        <source>What changed before could not be read. The damaged file was set aside.</source>
        <translation>No se pudo leer lo que cambió antes. El archivo dañado se apartó.</translation>
    </message>
</context>
<context>
    <name>lodestar::Clipboard</name>
    <message>
        <source>Could not be copied: the clipboard is in use by another program.</source>
        <translation>No se pudo copiar: otro programa usa el portapapeles.</translation>
    </message>
    <message>
        <source>Copied %1</source>
        <extracomment>%1 what was copied</extracomment>
        <translation>%1 copiado</translation>
    </message>
</context>
<context>
    <name>lodestar::Commands</name>
    <message>
        <source>Watch</source>
        <translation>Vigilancia</translation>
    </message>
    <message>
        <source>Fleet sheet</source>
        <translation>Hoja de consolas</translation>
    </message>
    <message>
        <source>Intro tour</source>
        <translation>Presentación</translation>
    </message>
    <message>
        <source>Bring back the demo</source>
        <translation>Recuperar la demo</translation>
    </message>
</context>
<context>
    <name>lodestar::ConnectionContent</name>
    <message>
        <source>%1 to %2</source>
        <extracomment>%1 and %2 dates</extracomment>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>%1, ended %2</source>
        <extracomment>%1 as in &quot;1 Sep 2025 to 31 Aug 2027&quot;, %2 a date</extracomment>
        <translation>%1, caducó el %2</translation>
    </message>
    <message>
        <source>%1, begins %2</source>
        <extracomment>%1 as in &quot;1 Sep 2025 to 31 Aug 2027&quot;, %2 a date</extracomment>
        <translation>%1, válido desde el %2</translation>
    </message>
    <message>
        <source>changed %1</source>
        <extracomment>%1 as in &quot;today, 02:58&quot; or &quot;3 Mar&quot;</extracomment>
        <translation>cambió %1</translation>
    </message>
    <message>
        <source>seen for the first time</source>
        <translation>visto por primera vez</translation>
    </message>
    <message>
        <source>unchanged since %1</source>
        <translation>sin cambios desde %1</translation>
    </message>
    <message>
        <source>unchanged</source>
        <translation>sin cambios</translation>
    </message>
    <message>
        <source>The new one is neither vouched for by this device’s authorities nor the one shown at the session check.</source>
        <translation>El nuevo no está avalado por las autoridades de este dispositivo ni es el de la comprobación de sesión.</translation>
    </message>
    <message>
        <source>Vouched for by this device’s authorities.</source>
        <translation>Avalado por las autoridades de este dispositivo.</translation>
    </message>
    <message>
        <source>Not vouched for by this device’s authorities. Consoles sign their own, so Lodestar takes what it is shown and says here when it changes.</source>
        <translation>No avalado por las autoridades de este dispositivo. Las consolas firman el suyo, así que Lodestar toma el que se le muestra y dice aquí cuándo cambia.</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>Certificado</translation>
    </message>
    <message>
        <source>At the logon, new</source>
        <translation>Al iniciar sesión, nuevo</translation>
    </message>
    <message>
        <source>At the session check, known since %1</source>
        <translation>En la comprobación de sesión, conocido desde %1</translation>
    </message>
    <message>
        <source>At the session check</source>
        <translation>En la comprobación de sesión</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Titular</translation>
    </message>
    <message>
        <source>Issuer</source>
        <translation>Emisor</translation>
    </message>
    <message>
        <source>itself</source>
        <translation>sí mismo</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>Validez</translation>
    </message>
    <message>
        <source>SHA-256 fingerprint</source>
        <translation>Huella SHA-256</translation>
    </message>
    <message>
        <source>Compared with last time</source>
        <translation>Comparado con la última vez</translation>
    </message>
    <message>
        <source>Trust</source>
        <translation>Confianza</translation>
    </message>
    <message>
        <source>The rest was read %1.</source>
        <extracomment>%1 as in &quot;at 09:26&quot; or &quot;yesterday 21:40&quot;</extracomment>
        <translation>El resto se leyó %1.</translation>
    </message>
    <message>
        <source>The rest was read just now.</source>
        <translation>El resto se acaba de leer.</translation>
    </message>
    <message>
        <source>Nothing of it could be read.</source>
        <translation>No se pudo leer nada.</translation>
    </message>
    <message>
        <source>%1 could not be read.</source>
        <extracomment>%1 names of feeds, as in &quot;Partitions and resource groups&quot;</extracomment>
        <translation>%1: no se pudo leer.</translation>
    </message>
    <message>
        <source>Not tried yet</source>
        <translation>Sin probar aún</translation>
    </message>
    <message>
        <source>Offline since %1</source>
        <extracomment>%1 as in &quot;02:58&quot; or &quot;yesterday 21:40&quot;</extracomment>
        <translation>Sin conexión desde %1</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>En línea</translation>
    </message>
    <message>
        <source>Everything was read %1, in %2.</source>
        <extracomment>%1 as in &quot;2 min ago&quot; or &quot;at 09:41&quot;, %2 a time in seconds</extracomment>
        <translation>Todo se leyó %1, en %2.</translation>
    </message>
    <message>
        <source>What to try</source>
        <translation>Qué probar</translation>
    </message>
    <message>
        <source>Last success</source>
        <translation>Último éxito</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nunca</translation>
    </message>
    <message>
        <source>%1, in %2</source>
        <extracomment>%1 as in &quot;today, 02:43&quot;, %2 a time in seconds</extracomment>
        <translation>%1, en %2</translation>
    </message>
    <message>
        <source>Read in full</source>
        <translation>Leído por completo</translation>
    </message>
    <message>
        <source>Version then</source>
        <translation>Versión de entonces</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nombre</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Conexión</translation>
    </message>
    <message>
        <source>connect</source>
        <translation>conexión</translation>
    </message>
    <message>
        <source>TLS</source>
        <translation>TLS</translation>
    </message>
    <message>
        <source>Session check</source>
        <translation>Sesión</translation>
    </message>
    <message>
        <source>session</source>
        <translation>sesión</translation>
    </message>
    <message>
        <source>Logon</source>
        <translation>Inicio de sesión</translation>
    </message>
    <message>
        <source>logon</source>
        <translation>inicio</translation>
    </message>
    <message>
        <source>Six feeds</source>
        <translation>Seis fuentes</translation>
    </message>
    <message>
        <source>feeds</source>
        <translation>fuentes</translation>
    </message>
    <message>
        <source>certificate as before</source>
        <translation>certificado como antes</translation>
    </message>
    <message>
        <source>first contact</source>
        <translation>primer contacto</translation>
    </message>
    <message>
        <source>certificate changed</source>
        <translation>certificado cambiado</translation>
    </message>
    <message>
        <source>address given</source>
        <translation>dirección dada</translation>
    </message>
    <message>
        <source>port 12443</source>
        <translation>puerto 12443</translation>
    </message>
    <message>
        <source>%1, key accepted</source>
        <extracomment>%1 an HTTP status</extracomment>
        <translation>%1, clave aceptada</translation>
    </message>
    <message>
        <source>%1, key ended</source>
        <translation>%1, clave caducada</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>%1 a reason, %2 a number such as -1202 or 401</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Not the certificate of the session check</source>
        <translation>No es el certificado de la comprobación de sesión</translation>
    </message>
    <message>
        <source>no key yet</source>
        <translation>sin clave aún</translation>
    </message>
    <message>
        <source>not needed</source>
        <translation>no hace falta</translation>
    </message>
    <message>
        <source>not reached</source>
        <translation>no alcanzado</translation>
    </message>
    <message>
        <source>Management Console</source>
        <translation>Consola de gestión</translation>
    </message>
    <message>
        <source>Managed Systems</source>
        <translation>Sistemas gestionados</translation>
    </message>
    <message>
        <source>Virtual IO Servers</source>
        <translation>Servidores E/S virtuales</translation>
    </message>
    <message>
        <source>Logical Partitions</source>
        <translation>Particiones lógicas</translation>
    </message>
    <message>
        <source>Serviceable Events</source>
        <translation>Eventos de servicio</translation>
    </message>
    <message>
        <source>Resource Groups</source>
        <translation>Grupos de recursos</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1&#xa0;KB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1&#xa0;MB</translation>
    </message>
    <message numerus="yes">
        <source>%Ln entries</source>
        <translation>
            <numerusform>%Ln entrada</numerusform>
            <numerusform>%Ln entradas</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, the console failed to answer</source>
        <extracomment>%1 an HTTP status</extracomment>
        <translation>%1, la consola no pudo responder</translation>
    </message>
    <message>
        <source>%1 were last read %2</source>
        <extracomment>%1 the name of a feed, %2 as in &quot;at 09:26&quot; or &quot;yesterday 21:40&quot;</extracomment>
        <translation>%1, última lectura %2</translation>
    </message>
    <message>
        <source>%1, %2 %3</source>
        <extracomment>%1 the same for another feed, which %2 and %3 add</extracomment>
        <translation>%1, %2 %3</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>%1 a sentence that lacks its end</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1&#xa0;ms</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1&#xa0;s</translation>
    </message>
    <message>
        <source>at %1</source>
        <extracomment>%1 a time of day</extracomment>
        <translation>a las %1</translation>
    </message>
    <message>
        <source>Last attempt</source>
        <translation>Último intento</translation>
    </message>
    <message>
        <source>Feeds</source>
        <translation>Fuentes</translation>
    </message>
    <message>
        <source>%1 of 6</source>
        <extracomment>%1 how many of the six feeds were read</extracomment>
        <translation>%1 de 6</translation>
    </message>
    <message numerus="yes">
        <source>The rest is %Ln min old.</source>
        <translation>
            <numerusform>El resto es de hace %Ln&#xa0;min.</numerusform>
            <numerusform>El resto es de hace %Ln&#xa0;min.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Online, %Ln of 6 feeds missing</source>
        <extracomment>%n of the six feeds</extracomment>
        <translation>
            <numerusform>En línea, falta %Ln de 6 fuentes</numerusform>
            <numerusform>En línea, faltan %Ln de 6 fuentes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln bytes</source>
        <translation>
            <numerusform>%Ln byte</numerusform>
            <numerusform>%Ln bytes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>no answer within %Ln s</source>
        <translation>
            <numerusform>sin respuesta en %Ln&#xa0;s</numerusform>
            <numerusform>sin respuesta en %Ln&#xa0;s</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::ConnectionViewController</name>
    <message>
        <source>Connection</source>
        <translation>Conexión</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows</source>
        <translation>
            <numerusform>%Ln fila</numerusform>
            <numerusform>%Ln filas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::CorvelListCell</name>
    <message>
        <source>N/A</source>
        <translation>N/D</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Sin conexión</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Bien</translation>
    </message>
    <message>
        <source>%1, updating</source>
        <extracomment>A console in the list, read aloud while it is being fetched: %1 its name</extracomment>
        <translation>%1, leyendo</translation>
    </message>
    <message>
        <source>%1, %2, attention %3, events %4</source>
        <extracomment>A console in the list, read aloud: %1 name, %2 status word, %3 and %4 counts</extracomment>
        <translation>%1, %2, atención %3, eventos %4</translation>
    </message>
</context>
<context>
    <name>lodestar::CorvelListViewController</name>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Conexión</translation>
    </message>
    <message>
        <source>My Corvels</source>
        <translation>Mis Corvels</translation>
    </message>
</context>
<context>
    <name>lodestar::CorvelMenu</name>
    <message>
        <source>Offline</source>
        <translation>Sin conexión</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Conexión</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Atención</translation>
    </message>
    <message>
        <source>Copy Address</source>
        <translation>Copiar dirección</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>lodestar::CorvelOverviewTableViewController</name>
    <message>
        <source>not loaded</source>
        <translation>sin cargar</translation>
    </message>
    <message>
        <source>Managed Systems</source>
        <translation>Sistemas gestionados</translation>
    </message>
    <message>
        <source>Virtual IO Servers</source>
        <translation>Servidores E/S virtuales</translation>
    </message>
    <message>
        <source>Logical Partitions</source>
        <translation>Particiones lógicas</translation>
    </message>
    <message>
        <source>Resource Groups</source>
        <translation>Grupos de recursos</translation>
    </message>
    <message>
        <source>Serviceable Events</source>
        <translation>Eventos de servicio</translation>
    </message>
    <message>
        <source>Management Console</source>
        <translation>Consola de gestión</translation>
    </message>
</context>
<context>
    <name>lodestar::DBusMessageService</name>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
</context>
<context>
    <name>lodestar::DashboardBars</name>
    <message>
        <source>%1 since yesterday</source>
        <translation>%1 desde ayer</translation>
    </message>
</context>
<context>
    <name>lodestar::DashboardMarks</name>
    <message>
        <source>missing from %1 of %2</source>
        <extracomment>%1 of %2 consoles</extracomment>
        <translation>falta en %1 de %2</translation>
    </message>
    <message>
        <source>%1 of %2 answered in full</source>
        <extracomment>%1 of %2 consoles</extracomment>
        <translation>%1 de %2 respondieron por completo</translation>
    </message>
    <message>
        <source>Read %1.</source>
        <extracomment>%1 and %2 as in &quot;09:41&quot; or &quot;yesterday 21:40&quot;</extracomment>
        <translation>Lectura: %1.</translation>
    </message>
    <message>
        <source>Read %1 to %2.</source>
        <translation>Lectura: %1 a %2.</translation>
    </message>
    <message numerus="yes">
        <source>Next in %Ln min.</source>
        <translation>
            <numerusform>Siguiente en %Ln&#xa0;min.</numerusform>
            <numerusform>Siguiente en %Ln&#xa0;min.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::DashboardTableViewController</name>
    <message>
        <source>Dashboard</source>
        <translation>Panel</translation>
    </message>
    <message>
        <source>Waiting for %1</source>
        <translation>Esperando a %1</translation>
    </message>
    <message numerus="yes">
        <source>Waiting for %1 of %Ln consoles</source>
        <translation>
            <numerusform>Esperando a %1 de %Ln consola</numerusform>
            <numerusform>Esperando a %1 de %Ln consolas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::DayBarsOutlet</name>
    <message>
        <source>today</source>
        <translation>hoy</translation>
    </message>
    <message>
        <source>Worse, above</source>
        <translation>Peor, arriba</translation>
    </message>
    <message>
        <source>Better, below</source>
        <translation>Mejor, abajo</translation>
    </message>
    <message>
        <source>%1 %2 worse, %3 better</source>
        <extracomment>A day, and what a chart tells of it.</extracomment>
        <translation>%1 %2 peor, %3 mejor</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>A day, and its number of new events.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>New Events a Day</source>
        <translation>Eventos nuevos por día</translation>
    </message>
    <message numerus="yes">
        <source>%Ln days, %1</source>
        <extracomment>How many days a chart has, and what it tells of the last.</extracomment>
        <translation>
            <numerusform>%Ln día, %1</numerusform>
            <numerusform>%Ln días, %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln days, %2</source>
        <extracomment>A chart&apos;s name, how many days it has, and what it tells of the last.</extracomment>
        <translation>
            <numerusform>%1, %Ln día, %2</numerusform>
            <numerusform>%1, %Ln días, %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::DeltaCorvelViewController</name>
    <message>
        <source>Add Corvel</source>
        <translation>Añadir Corvel</translation>
    </message>
    <message>
        <source>Edit Corvel</source>
        <translation>Editar Corvel</translation>
    </message>
    <message>
        <source>verifying...</source>
        <translation>verificando...</translation>
    </message>
    <message>
        <source>Please enter all fields</source>
        <translation>Rellene todos los campos</translation>
    </message>
    <message>
        <source>Corvel has already been added</source>
        <translation>El Corvel ya se ha añadido</translation>
    </message>
    <message>
        <source>gathering data...</source>
        <translation>reuniendo datos...</translation>
    </message>
</context>
<context>
    <name>lodestar::DetailViewController</name>
    <message>
        <source>Serial Number</source>
        <translation>Número de serie</translation>
    </message>
    <message>
        <source>Machine Type</source>
        <translation>Tipo de máquina</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>Copy Value</source>
        <translation>Copiar valor</translation>
    </message>
    <message>
        <source>Copy All</source>
        <translation>Copiar todo</translation>
    </message>
    <message>
        <source>Find on All Consoles</source>
        <translation>Buscar en todas las consolas</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows</source>
        <translation>
            <numerusform>%Ln fila</numerusform>
            <numerusform>%Ln filas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::EventOrderViewController</name>
    <message>
        <source>Order</source>
        <translation>Orden</translation>
    </message>
    <message>
        <source>As the console sends them</source>
        <translation>Como los envía la consola</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>Los más nuevos primero</translation>
    </message>
    <message>
        <source>By status</source>
        <translation>Por estado</translation>
    </message>
    <message>
        <source>By reference code</source>
        <translation>Por código de referencia</translation>
    </message>
</context>
<context>
    <name>lodestar::FeedListViewController</name>
    <message>
        <source>updating...</source>
        <translation>leyendo...</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>The name of a file: what is listed, such as &quot;Managed Systems&quot;, and a console&apos;s name</extracomment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>lodestar::FeedName</name>
    <message>
        <source>console details</source>
        <translation>datos de la consola</translation>
    </message>
    <message>
        <source>Console details</source>
        <translation>Datos de la consola</translation>
    </message>
    <message>
        <source>systems</source>
        <translation>sistemas</translation>
    </message>
    <message>
        <source>Systems</source>
        <translation>Sistemas</translation>
    </message>
    <message>
        <source>IO servers</source>
        <translation>Servidores E/S</translation>
    </message>
    <message>
        <source>partitions</source>
        <translation>particiones</translation>
    </message>
    <message>
        <source>Partitions</source>
        <translation>Particiones</translation>
    </message>
    <message>
        <source>events</source>
        <translation>eventos</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Eventos</translation>
    </message>
    <message>
        <source>resource groups</source>
        <translation>grupos de recursos</translation>
    </message>
    <message>
        <source>Resource groups</source>
        <translation>Grupos de recursos</translation>
    </message>
    <message>
        <source>groups</source>
        <translation>grupos</translation>
    </message>
    <message>
        <source>%1 not read</source>
        <extracomment>%1 the name of a feed, as in &quot;Partitions&quot;</extracomment>
        <translation>%1 sin leer</translation>
    </message>
    <message>
        <source>%1 and %2 not read</source>
        <extracomment>%1 and %2 names of feeds, as in &quot;Partitions&quot; and &quot;groups&quot;</extracomment>
        <translation>%1 y %2 sin leer</translation>
    </message>
    <message>
        <source>Nothing of it could be read</source>
        <translation>No se pudo leer nada</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 y %2</translation>
    </message>
    <message>
        <source>%1, %2 and %3</source>
        <translation>%1, %2 y %3</translation>
    </message>
    <message numerus="yes">
        <source>%Ln of 6 feeds not read</source>
        <extracomment>%n of the six feeds</extracomment>
        <translation>
            <numerusform>%Ln de 6 fuentes sin leer</numerusform>
            <numerusform>%Ln de 6 fuentes sin leer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 and %Ln more</source>
        <extracomment>%1 and %2 names, %n how many more there are</extracomment>
        <translation>
            <numerusform>%1, %2 y %Ln más</numerusform>
            <numerusform>%1, %2 y %Ln más</numerusform>
        </translation>
    </message>
    <message>
        <source>IO servers</source>
        <comment>within a sentence</comment>
        <translation>servidores E/S</translation>
    </message>
</context>
<context>
    <name>lodestar::FeedbackHost</name>
    <message>
        <source>Keep</source>
        <translation>Conservar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>Lodestar ended unexpectedly</source>
        <translation>Lodestar se cerró de forma inesperada</translation>
    </message>
    <message numerus="yes">
        <source>%Ln reports were made on this device. They hold no passwords and are sent nowhere by themselves.</source>
        <translation>
            <numerusform>Se hizo %Ln informe en este dispositivo. No contiene contraseñas ni se envía por sí mismo.</numerusform>
            <numerusform>Se hicieron %Ln informes en este dispositivo. No contienen contraseñas ni se envían por sí mismos.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::FeedbackViewController</name>
    <message>
        <source>Feedback</source>
        <translation>Comentarios</translation>
    </message>
    <message>
        <source>Discard this feedback?</source>
        <translation>¿Descartar estos comentarios?</translation>
    </message>
    <message>
        <source>Keep Editing</source>
        <translation>Seguir editando</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Report Saved</source>
        <translation>Informe guardado</translation>
    </message>
    <message>
        <source>It is in the list of reports on this device.</source>
        <translation>Está en la lista de informes de este dispositivo.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>What Is Sent</source>
        <translation>Qué se envía</translation>
    </message>
    <message>
        <source>What Is Saved</source>
        <translation>Qué se guarda</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>The report could not be saved</source>
        <translation>No se pudo guardar el informe</translation>
    </message>
</context>
<context>
    <name>lodestar::FileSaver</name>
    <message>
        <source>Could not be saved: %1</source>
        <extracomment>%1 a reason, such as &quot;the disk is full.&quot;</extracomment>
        <translation>No se pudo guardar: %1</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <extracomment>%1 a file&apos;s name</extracomment>
        <translation>Guardado como %1</translation>
    </message>
    <message>
        <source>Save as File</source>
        <translation>Guardar archivo</translation>
    </message>
    <message>
        <source>There is already a file named %1.</source>
        <extracomment>%1 a file&apos;s name</extracomment>
        <translation>Ya hay un archivo llamado %1.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Reemplazar</translation>
    </message>
</context>
<context>
    <name>lodestar::FindListController</name>
    <message>
        <source>%1, %2</source>
        <extracomment>The name of a file: what was found, such as &quot;Managed Systems&quot;, and the text that found it</extracomment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>lodestar::FindText</name>
    <message>
        <source>Managed Systems</source>
        <translation>Sistemas gestionados</translation>
    </message>
    <message>
        <source>Virtual IO Servers</source>
        <translation>Servidores E/S virtuales</translation>
    </message>
    <message>
        <source>Logical Partitions</source>
        <translation>Particiones lógicas</translation>
    </message>
    <message>
        <source>Resource Groups</source>
        <translation>Grupos de recursos</translation>
    </message>
    <message>
        <source>Serviceable Events</source>
        <translation>Eventos de servicio</translation>
    </message>
    <message>
        <source>Consoles</source>
        <translation>Consolas</translation>
    </message>
    <message>
        <source>Nothing was read yet. Refresh first.</source>
        <translation>Aún no se ha leído nada. Actualice primero.</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <extracomment>%1 and %2 as in &quot;09:41&quot; or &quot;yesterday 21:40&quot;</extracomment>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>%1+</source>
        <extracomment>More than can be counted at a glance</extracomment>
        <translation>%1+</translation>
    </message>
    <message>
        <source>Show all %1</source>
        <translation>Mostrar todo (%1)</translation>
    </message>
    <message>
        <source>Nothing found for “%1”</source>
        <translation>Nada encontrado para «%1»</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln consoles were searched.</source>
        <translation>
            <numerusform>Se buscó en %1 de %Ln consola.</numerusform>
            <numerusform>Se buscó en %1 de %Ln consolas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln things</source>
        <translation>
            <numerusform>%Ln objeto</numerusform>
            <numerusform>%Ln objetos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln consoles</source>
        <extracomment>Within &quot;2,318 things on 5 of 6 consoles, read 09:41.&quot;</extracomment>
        <translation>
            <numerusform>%1 de %Ln consola</numerusform>
            <numerusform>%1 de %Ln consolas</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 on %2, read %3.</source>
        <extracomment>%1 as in &quot;2,318 things&quot;, %2 as in &quot;5 of 6 consoles&quot;, %3 as in &quot;09:41&quot; or &quot;09:41 to 09:43&quot;</extracomment>
        <translation>%1 en %2, lectura: %3.</translation>
    </message>
    <message numerus="yes">
        <source>%1 were not read.</source>
        <extracomment>%1 the names of so many consoles</extracomment>
        <translation>
            <numerusform>%1 no se leyó.</numerusform>
            <numerusform>%1 no se leyeron.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 are missing.</source>
        <extracomment>What was not read, and the names of its consoles.</extracomment>
        <translation>%1 de %2 sin leer.</translation>
    </message>
</context>
<context>
    <name>lodestar::FindViewController</name>
    <message>
        <source>Names</source>
        <translation>Nombres</translation>
    </message>
    <message>
        <source>helios-03, vios-harbour-2b, Ledger production</source>
        <translation>helios-03, vios-harbour-2b, Ledger production</translation>
    </message>
    <message>
        <source>Addresses and serials</source>
        <translation>Direcciones y números de serie</translation>
    </message>
    <message>
        <source>192.0.2.63, corvel-b, 06A17C2, 4210</source>
        <translation>192.0.2.63, corvel-b, 06A17C2, 4210</translation>
    </message>
    <message>
        <source>Reference codes</source>
        <translation>Códigos de referencia</translation>
    </message>
    <message>
        <source>X417-2208, or just X417</source>
        <translation>X417-2208, o solo X417</translation>
    </message>
    <message>
        <source>Event numbers and texts</source>
        <translation>Números y textos de eventos</translation>
    </message>
    <message>
        <source>#1042, power supply</source>
        <translation>#1042, power supply</translation>
    </message>
    <message>
        <source>Find on all consoles</source>
        <translation>Buscar en todo</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Recientes</translation>
    </message>
    <message>
        <source>What can be found</source>
        <translation>Qué se puede encontrar</translation>
    </message>
</context>
<context>
    <name>lodestar::FindingRows</name>
    <message>
        <source>Expected</source>
        <translation>Esperado</translation>
    </message>
    <message>
        <source>Marked as expected until it runs again</source>
        <translation>Marcado como esperado hasta que vuelva a funcionar</translation>
    </message>
</context>
<context>
    <name>lodestar::FindingText</name>
    <message>
        <source>%1, %2</source>
        <extracomment>A sentence and a further part of it: &quot;System in error&quot; and &quot;X417-2208&quot;</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Stopped, ran until %1</source>
        <extracomment>%1 a time of day</extracomment>
        <translation>Parado, funcionó hasta %1</translation>
    </message>
    <message>
        <source>IO server stopped, ran until %1</source>
        <extracomment>%1 a time of day</extracomment>
        <translation>Servidor E/S parado, funcionó hasta %1</translation>
    </message>
    <message>
        <source>Partition stopped, ran until %1</source>
        <translation>Parada, activa hasta %1</translation>
    </message>
    <message>
        <source>call home</source>
        <translation>aviso al fabricante</translation>
    </message>
    <message>
        <source>System incomplete</source>
        <translation>Sistema incompleto</translation>
    </message>
    <message>
        <source>System in error</source>
        <translation>Sistema con error</translation>
    </message>
    <message>
        <source>LED on</source>
        <translation>LED encendido</translation>
    </message>
    <message>
        <source>IO server in error</source>
        <translation>Servidor E/S con error</translation>
    </message>
    <message>
        <source>Partition in error</source>
        <translation>Partición con error</translation>
    </message>
    <message>
        <source>Offline, %1</source>
        <extracomment>%1 why, as in &quot;connection refused&quot;</extracomment>
        <translation>Sin conexión, %1</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Sin conexión</translation>
    </message>
    <message>
        <source>LED on, system %1</source>
        <extracomment>%1 the console&apos;s word for a system&apos;s state</extracomment>
        <translation>LED encendido, sistema %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln resources in error</source>
        <translation>
            <numerusform>%1 de %Ln recurso con error</numerusform>
            <numerusform>%1 de %Ln recursos con error</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles</source>
        <translation>
            <numerusform>%Ln consola</numerusform>
            <numerusform>%Ln consolas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln systems</source>
        <translation>
            <numerusform>%Ln sistema</numerusform>
            <numerusform>%Ln sistemas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln IO servers</source>
        <translation>
            <numerusform>%Ln servidor E/S</numerusform>
            <numerusform>%Ln servidores E/S</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln partitions</source>
        <translation>
            <numerusform>%Ln partición</numerusform>
            <numerusform>%Ln particiones</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln groups</source>
        <translation>
            <numerusform>%Ln grupo</numerusform>
            <numerusform>%Ln grupos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln events</source>
        <translation>
            <numerusform>%Ln evento</numerusform>
            <numerusform>%Ln eventos</numerusform>
        </translation>
    </message>
    <message>
        <source>In error on %1</source>
        <extracomment>%1 the name of a system</extracomment>
        <translation>Con error en %1</translation>
    </message>
    <message>
        <source>system incomplete</source>
        <translation>sistema incompleto</translation>
    </message>
    <message>
        <source>system in error</source>
        <translation>sistema con error</translation>
    </message>
    <message>
        <source>attention LED on</source>
        <extracomment>%1 the console&apos;s word for a system&apos;s state</extracomment>
        <translation>LED de atención encendido</translation>
    </message>
    <message>
        <source>system %1</source>
        <translation>sistema %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln things need attention</source>
        <translation>
            <numerusform>%Ln asunto requiere atención</numerusform>
            <numerusform>%Ln asuntos requieren atención</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln events are open</source>
        <translation>
            <numerusform>%Ln evento está abierto</numerusform>
            <numerusform>%Ln eventos están abiertos</numerusform>
        </translation>
    </message>
    <message>
        <source>No faults</source>
        <translation>Sin fallos</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln consoles answered in full</source>
        <translation>
            <numerusform>%1 de %Ln consola respondió por completo</numerusform>
            <numerusform>%1 de %Ln consolas respondieron por completo</numerusform>
        </translation>
    </message>
    <message>
        <source>updating... %1 of %2</source>
        <translation>leyendo... %1 de %2</translation>
    </message>
    <message>
        <source>The console did not answer. What it would report is not known.</source>
        <translation>La consola no respondió. No se sabe qué indicaría.</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln consoles did not answer. What they would report is not known.</source>
        <translation>
            <numerusform>%1 de %Ln consola no respondió. No se sabe qué indicaría.</numerusform>
            <numerusform>%1 de %Ln consolas no respondieron. No se sabe qué indicarían.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln things needed attention there before.</source>
        <translation>
            <numerusform>Antes %Ln asunto requería atención ahí.</numerusform>
            <numerusform>Antes %Ln asuntos requerían atención ahí.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln more things are not shown.</source>
        <translation>
            <numerusform>%Ln asunto más no se muestra.</numerusform>
            <numerusform>%Ln asuntos más no se muestran.</numerusform>
        </translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Errores</translation>
    </message>
    <message>
        <source>Not answering</source>
        <translation>Sin respuesta</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Avisos</translation>
    </message>
    <message>
        <source>Open events</source>
        <translation>Eventos abiertos</translation>
    </message>
    <message>
        <source>Consoles</source>
        <translation>Consolas</translation>
    </message>
    <message>
        <source>Systems</source>
        <translation>Sistemas</translation>
    </message>
    <message>
        <source>IO servers</source>
        <translation>Servidores E/S</translation>
    </message>
    <message>
        <source>Partitions</source>
        <translation>Particiones</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Grupos</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Eventos</translation>
    </message>
    <message>
        <source>consoles</source>
        <translation>consolas</translation>
    </message>
    <message>
        <source>systems</source>
        <translation>sistemas</translation>
    </message>
    <message>
        <source>partitions</source>
        <translation>particiones</translation>
    </message>
    <message>
        <source>groups</source>
        <translation>grupos</translation>
    </message>
    <message>
        <source>events</source>
        <translation>eventos</translation>
    </message>
    <message numerus="yes">
        <source>%Ln times</source>
        <translation>
            <numerusform>%Ln vez</numerusform>
            <numerusform>%Ln veces</numerusform>
        </translation>
    </message>
    <message>
        <source>IO servers</source>
        <comment>within a sentence</comment>
        <translation>servidores E/S</translation>
    </message>
</context>
<context>
    <name>lodestar::FleetAgainViewController</name>
    <message>
        <source>Passwords, one a user</source>
        <translation>Contraseñas</translation>
    </message>
</context>
<context>
    <name>lodestar::FleetChooseViewController</name>
    <message>
        <source>Import Fleet Sheet</source>
        <translation>Importar hoja de consolas</translation>
    </message>
    <message>
        <source>Name, address and user were found in its first line.</source>
        <translation>Nombre, dirección y usuario están en la línea de títulos.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows</source>
        <translation>
            <numerusform>%Ln fila</numerusform>
            <numerusform>%Ln filas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Verify %Ln Consoles</source>
        <translation>
            <numerusform>Verificar %Ln consola</numerusform>
            <numerusform>Verificar %Ln consolas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::FleetEventCell</name>
    <message>
        <source>call home</source>
        <translation>aviso al fabricante</translation>
    </message>
</context>
<context>
    <name>lodestar::FleetEventsViewController</name>
    <message>
        <source>Events</source>
        <translation>Eventos</translation>
    </message>
    <message numerus="yes">
        <source>%1 were not read.</source>
        <extracomment>%1 the names of so many consoles</extracomment>
        <translation>
            <numerusform>%1 no se leyó.</numerusform>
            <numerusform>%1 no se leyeron.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 are missing.</source>
        <extracomment>What was not read, and the names of its consoles.</extracomment>
        <translation>%1 de %2 sin leer.</translation>
    </message>
    <message>
        <source>Nothing was read yet. Refresh first.</source>
        <translation>Aún no se ha leído nada. Actualice primero.</translation>
    </message>
    <message>
        <source>No serviceable events.</source>
        <translation>No hay eventos de servicio.</translation>
    </message>
    <message>
        <source>Nothing left to show</source>
        <translation>No queda nada que mostrar</translation>
    </message>
    <message>
        <source>open</source>
        <translation>abiertos</translation>
    </message>
    <message>
        <source>call home</source>
        <translation>aviso al fabricante</translation>
    </message>
    <message>
        <source>%1: %2 of %3</source>
        <extracomment>What is chosen, how many events that are, and how many there are.</extracomment>
        <translation>%1: %2 de %3</translation>
    </message>
    <message>
        <source>no reference code</source>
        <translation>sin código de referencia</translation>
    </message>
    <message>
        <source>no status</source>
        <translation>sin estado</translation>
    </message>
</context>
<context>
    <name>lodestar::FleetFile</name>
    <message>
        <source>CSV files (*.csv *.txt *.tsv)</source>
        <extracomment>the files that a dialogue shows; what stands in brackets stays</extracomment>
        <translation>Archivos CSV (*.csv *.txt *.tsv)</translation>
    </message>
    <message>
        <source>Import Fleet Sheet</source>
        <translation>Importar hoja de consolas</translation>
    </message>
</context>
<context>
    <name>lodestar::FleetSheetText</name>
    <message>
        <source>“%1”</source>
        <extracomment>%1 a name</extracomment>
        <translation>«%1»</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 and %2 names</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <extracomment>%1 names, %n how many more there are</extracomment>
        <translation>
            <numerusform>%1 y %Ln más</numerusform>
            <numerusform>%1 y %Ln más</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <extracomment>%1 and %2 names</extracomment>
        <translation>%1 y %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles</source>
        <translation>
            <numerusform>%Ln consola</numerusform>
            <numerusform>%Ln consolas</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no first line with name, address and user.</source>
        <translation>No hay línea de títulos con nombre, dirección y usuario.</translation>
    </message>
    <message>
        <source>This file is too large for a fleet sheet.</source>
        <translation>Este archivo es demasiado grande para una hoja de consolas.</translation>
    </message>
    <message>
        <source>This is not a CSV file.</source>
        <translation>No es un archivo CSV.</translation>
    </message>
    <message numerus="yes">
        <source>Passwords are never read from a sheet: %1 are left out.</source>
        <extracomment>%1 titles of columns</extracomment>
        <translation>
            <numerusform>Las contraseñas nunca se leen de una hoja: la columna %1 se omite.</numerusform>
            <numerusform>Las contraseñas nunca se leen de una hoja: las columnas %1 se omiten.</numerusform>
        </translation>
    </message>
    <message>
        <source>Not used: %1.</source>
        <extracomment>%1 titles of columns</extracomment>
        <translation>Sin usar: %1.</translation>
    </message>
    <message>
        <source>Row %1: no address</source>
        <translation>Fila %1: sin dirección</translation>
    </message>
    <message>
        <source>Row %1: no user</source>
        <translation>Fila %1: sin usuario</translation>
    </message>
    <message>
        <source>Row %1: the same address as row %2</source>
        <translation>Fila %1: misma dirección que la fila %2</translation>
    </message>
    <message>
        <source>Row %1: not an address</source>
        <translation>Fila %1: no es una dirección</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>en espera</translation>
    </message>
    <message>
        <source>verifying</source>
        <translation>verificando</translation>
    </message>
    <message>
        <source>gathering</source>
        <translation>reuniendo</translation>
    </message>
    <message>
        <source>verified</source>
        <translation>verificada</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>rechazada</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>sin respuesta</translation>
    </message>
    <message>
        <source>no address</source>
        <translation>sin dirección</translation>
    </message>
    <message>
        <source>not verified</source>
        <translation>no verificada</translation>
    </message>
    <message>
        <source>tried</source>
        <translation>probadas</translation>
    </message>
    <message numerus="yes">
        <source>tried, about %Ln s left</source>
        <translation>
            <numerusform>probadas, quedan unos %Ln&#xa0;s</numerusform>
            <numerusform>probadas, quedan unos %Ln&#xa0;s</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>tried, about %Ln min left</source>
        <translation>
            <numerusform>probadas, quedan unos %Ln&#xa0;min</numerusform>
            <numerusform>probadas, quedan unos %Ln&#xa0;min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln of 6 missing</source>
        <translation>
            <numerusform>falta %Ln de 6</numerusform>
            <numerusform>faltan %Ln de 6</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::FleetSheetViewController</name>
    <message>
        <source>Fleet Sheet</source>
        <translation>Hoja de consolas</translation>
    </message>
    <message numerus="yes">
        <source>Export %Ln Consoles</source>
        <translation>
            <numerusform>Exportar %Ln consola</numerusform>
            <numerusform>Exportar %Ln consolas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::FleetUnusableViewController</name>
    <message>
        <source>Cannot be used</source>
        <translation>No utilizables</translation>
    </message>
</context>
<context>
    <name>lodestar::FleetVerifyViewController</name>
    <message>
        <source>Verifying</source>
        <translation>Verificando</translation>
    </message>
    <message>
        <source>Stopped. Nothing was added.</source>
        <translation>Parado. No se añadió nada.</translation>
    </message>
    <message>
        <source>Import Fleet Sheet</source>
        <translation>Importar hoja de consolas</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <extracomment>%1 a number of so many</extracomment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>verified and ready to be added</source>
        <translation>verificadas y listas para añadir</translation>
    </message>
    <message numerus="yes">
        <source>Add %Ln Consoles</source>
        <translation>
            <numerusform>Añadir %Ln consola</numerusform>
            <numerusform>Añadir %Ln consolas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %Ln are added together, or none.</source>
        <translation>
            <numerusform>Solo se añade esta consola.</numerusform>
            <numerusform>Se añaden las %Ln juntas o ninguna.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 verified and ready to be added</source>
        <translation>%1 de %2 verificadas y listas para añadir</translation>
    </message>
    <message>
        <source>%1 of %2 tried</source>
        <translation>%1 de %2 probadas</translation>
    </message>
    <message>
        <source>Not verified</source>
        <translation>No verificadas</translation>
    </message>
    <message>
        <source>Not added</source>
        <translation>No añadidas</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>En curso</translation>
    </message>
    <message>
        <source>Verified</source>
        <translation>Verificadas</translation>
    </message>
    <message>
        <source>Show %1 More</source>
        <translation>Mostrar %1 más</translation>
    </message>
    <message>
        <source>Show all %1</source>
        <translation>Mostrar las %1</translation>
    </message>
    <message numerus="yes">
        <source>Try These %Ln Again</source>
        <translation>
            <numerusform>Reintentar esta</numerusform>
            <numerusform>Reintentar estas %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Save Them as a Sheet</source>
        <translation>
            <numerusform>Guardar como hoja</numerusform>
            <numerusform>Guardar como hoja</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing Was Added</source>
        <translation>No se añadió nada</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message numerus="yes">
        <source>Added %Ln consoles</source>
        <translation>
            <numerusform>%Ln consola añadida</numerusform>
            <numerusform>%Ln consolas añadidas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::FoundFields</name>
    <message>
        <source>serial %1</source>
        <translation>serie %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln resources</source>
        <translation>
            <numerusform>%Ln recurso</numerusform>
            <numerusform>%Ln recursos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln in error</source>
        <extracomment>How many of a group&apos;s resources are in error, as in &quot;16 resources, 1 in error&quot;</extracomment>
        <translation>
            <numerusform>%Ln con error</numerusform>
            <numerusform>%Ln con error</numerusform>
        </translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Bien</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Sin conexión</translation>
    </message>
</context>
<context>
    <name>lodestar::GroupedListViewController</name>
    <message>
        <source>Unknown system</source>
        <translation>Sistema desconocido</translation>
    </message>
</context>
<context>
    <name>lodestar::KeySheetController</name>
    <message>
        <source>On this screen</source>
        <translation>En esta pantalla</translation>
    </message>
    <message>
        <source>Everywhere</source>
        <translation>En todas partes</translation>
    </message>
    <message>
        <source>In lists</source>
        <translation>En listas</translation>
    </message>
    <message>
        <source>In charts</source>
        <translation>En gráficos</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Comandos</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Teclado</translation>
    </message>
</context>
<context>
    <name>lodestar::KeyTable</name>
    <message>
        <source>%1 (%2)</source>
        <extracomment>A button&apos;s tip: what the button does, and the keys that do it</extracomment>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>lodestar::LPDetailViewController</name>
    <message>
        <source>Partition Details</source>
        <translation>Detalles de la partición</translation>
    </message>
</context>
<context>
    <name>lodestar::LargeChartViewController</name>
    <message>
        <source>No performance data available.</source>
        <translation>No hay datos de rendimiento.</translation>
    </message>
    <message>
        <source>Save points as CSV</source>
        <translation>Guardar puntos en CSV</translation>
    </message>
    <message>
        <source>Save picture</source>
        <translation>Guardar imagen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>lodestar::ListShare</name>
    <message>
        <source>Save list as CSV</source>
        <translation>Guardar lista en CSV</translation>
    </message>
    <message>
        <source>Save as File</source>
        <translation>Guardar archivo</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows</source>
        <translation>
            <numerusform>%Ln fila</numerusform>
            <numerusform>%Ln filas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::LoginViewController</name>
    <message>
        <source>Passcode</source>
        <translation>Código</translation>
    </message>
    <message>
        <source>Login Failed</source>
        <translation>No se pudo entrar</translation>
    </message>
    <message>
        <source>Incorrect Credentials</source>
        <translation>Código incorrecto</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Reset Application?</source>
        <translation>¿Restablecer Lodestar?</translation>
    </message>
    <message>
        <source>Resetting your password will clear all application data</source>
        <translation>Al restablecer el código se borran todos los datos</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>lodestar::MCViewController</name>
    <message>
        <source>Main Information</source>
        <translation>Información principal</translation>
    </message>
    <message>
        <source>Model &amp; Serial Information</source>
        <translation>Modelo y número de serie</translation>
    </message>
    <message>
        <source>Version Information</source>
        <translation>Información de versión</translation>
    </message>
    <message>
        <source>Console information could not be loaded.</source>
        <translation>No se pudo cargar la información de la consola.</translation>
    </message>
    <message>
        <source>Management Console</source>
        <translation>Consola de gestión</translation>
    </message>
    <message>
        <source>updating...</source>
        <translation>leyendo...</translation>
    </message>
    <message>
        <source>Console Data</source>
        <translation>Datos de la consola</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>N/D</translation>
    </message>
    <message>
        <source>Console Name</source>
        <translation>Nombre de la consola</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Build Level</source>
        <translation>Nivel de compilación</translation>
    </message>
</context>
<context>
    <name>lodestar::MSDetailViewController</name>
    <message>
        <source>Main Information</source>
        <translation>Información principal</translation>
    </message>
    <message>
        <source>Model &amp; Serial Information</source>
        <translation>Modelo y número de serie</translation>
    </message>
    <message>
        <source>Processor Information</source>
        <translation>Procesadores</translation>
    </message>
    <message>
        <source>Memory Information</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>Dirección IP</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Reference Code</source>
        <translation>Código de referencia</translation>
    </message>
    <message>
        <source>Attention LED On</source>
        <translation>LED de atención encendido</translation>
    </message>
    <message>
        <source>Available Processing Units</source>
        <translation>Unidades de proceso disponibles</translation>
    </message>
    <message>
        <source>Available Memory</source>
        <translation>Memoria disponible</translation>
    </message>
</context>
<context>
    <name>lodestar::MSListCell</name>
    <message>
        <source>error</source>
        <translation>error</translation>
    </message>
    <message>
        <source>attention LED on</source>
        <translation>LED de atención encendido</translation>
    </message>
</context>
<context>
    <name>lodestar::MSListViewController</name>
    <message>
        <source>System menu</source>
        <translation>Menú del sistema</translation>
    </message>
    <message>
        <source>Managed System</source>
        <translation>Sistema gestionado</translation>
    </message>
    <message>
        <source>System Information</source>
        <translation>Información del sistema</translation>
    </message>
    <message>
        <source>Performance Monitoring</source>
        <translation>Rendimiento</translation>
    </message>
    <message>
        <source>Logical Partitions</source>
        <translation>Particiones lógicas</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>lodestar::MSOverViewController</name>
    <message>
        <source>Managed System</source>
        <translation>Sistema gestionado</translation>
    </message>
    <message>
        <source>Performance Monitoring</source>
        <translation>Rendimiento</translation>
    </message>
    <message>
        <source>Logical Partitions</source>
        <translation>Particiones lógicas</translation>
    </message>
    <message>
        <source>System Information</source>
        <translation>Información del sistema</translation>
    </message>
</context>
<context>
    <name>lodestar::OpenSourceViewController</name>
    <message>
        <source>Open Source Licenses</source>
        <translation>Licencias de código abierto</translation>
    </message>
</context>
<context>
    <name>lodestar::OrnisLicenseViewController</name>
    <message>
        <source>Ornis License</source>
        <translation>Licencia de Ornis</translation>
    </message>
</context>
<context>
    <name>lodestar::PCMViewController</name>
    <message>
        <source>Fetching performance data...</source>
        <translation>Leyendo datos de rendimiento...</translation>
    </message>
    <message>
        <source>updating...</source>
        <translation>leyendo...</translation>
    </message>
    <message>
        <source>No performance data available.</source>
        <translation>No hay datos de rendimiento.</translation>
    </message>
</context>
<context>
    <name>lodestar::PartitionDetailViewController</name>
    <message>
        <source>Main Information</source>
        <translation>Información principal</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
</context>
<context>
    <name>lodestar::PasswordCreationViewController</name>
    <message>
        <source>Set Password</source>
        <translation>Definir código</translation>
    </message>
    <message>
        <source>Any characters, any length.</source>
        <translation>Cualquier carácter, cualquier longitud.</translation>
    </message>
    <message>
        <source>%1. The passcode was not changed.</source>
        <translation>%1. El código no se cambió.</translation>
    </message>
    <message>
        <source>Please reenter password</source>
        <translation>Escriba el código otra vez</translation>
    </message>
    <message>
        <source>%1. The passcode was not saved.</source>
        <translation>%1. El código no se guardó.</translation>
    </message>
    <message>
        <source>Password Saved</source>
        <translation>Código guardado</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Falló</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>lodestar::PerformanceText</name>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 a day, %2 a time of day</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <extracomment>%1 as in &quot;lowest 2.80&quot;, %2 a time of day</extracomment>
        <translation>%1 a las %2</translation>
    </message>
    <message>
        <source>%1 all along</source>
        <extracomment>%1 a number</extracomment>
        <translation>siempre %1</translation>
    </message>
    <message>
        <source>lowest %1</source>
        <translation>mínimo %1</translation>
    </message>
    <message>
        <source>mean %1</source>
        <translation>media %1</translation>
    </message>
    <message>
        <source>highest %1</source>
        <translation>máximo %1</translation>
    </message>
    <message>
        <source>last %1</source>
        <translation>último %1</translation>
    </message>
    <message>
        <source>all along</source>
        <translation>siempre</translation>
    </message>
    <message>
        <source>Total Processors</source>
        <translation>Procesadores en total</translation>
    </message>
    <message>
        <source>Processors Allocated</source>
        <translation>Procesadores asignados</translation>
    </message>
    <message>
        <source>Processors Used</source>
        <translation>Procesadores usados</translation>
    </message>
    <message>
        <source>Total Memory</source>
        <translation>Memoria total</translation>
    </message>
    <message>
        <source>Memory Allocated</source>
        <translation>Memoria asignada</translation>
    </message>
    <message>
        <source>Memory Used</source>
        <translation>Memoria usada</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Allocated</source>
        <translation>Asignado</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Usado</translation>
    </message>
    <message numerus="yes">
        <source>%Ln samples had no values and are left out</source>
        <translation>
            <numerusform>%Ln muestra no tenía valores y se omite</numerusform>
            <numerusform>%Ln muestras no tenían valores y se omiten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln samples had no time and are left out of the chart</source>
        <translation>
            <numerusform>%Ln muestra no tenía hora y se omite del gráfico</numerusform>
            <numerusform>%Ln muestras no tenían hora y se omiten del gráfico</numerusform>
        </translation>
    </message>
    <message>
        <source>total %1</source>
        <translation>total %1</translation>
    </message>
    <message>
        <source>allocated %1</source>
        <translation>asignado %1</translation>
    </message>
    <message>
        <source>used %1</source>
        <translation>usado %1</translation>
    </message>
</context>
<context>
    <name>lodestar::PieChartView</name>
    <message>
        <source>, </source>
        <extracomment>Between the parts of a chart as they are read out.</extracomment>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>lodestar::PlotChartView</name>
    <message>
        <source>%1 %2</source>
        <extracomment>A data set&apos;s name and its latest value, as in &quot;Processors Used 6.5&quot;.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>, </source>
        <extracomment>Between the data sets of a chart as they are read out.</extracomment>
        <translation>, </translation>
    </message>
    <message>
        <source>%1, %2: %3</source>
        <extracomment>A data set&apos;s name, the label of one of its values, and the value.</extracomment>
        <translation>%1, %2: %3</translation>
    </message>
</context>
<context>
    <name>lodestar::RGListCell</name>
    <message>
        <source>cyan</source>
        <translation>cian</translation>
    </message>
    <message>
        <source>green</source>
        <translation>verde</translation>
    </message>
    <message>
        <source>red</source>
        <translation>rojo</translation>
    </message>
    <message>
        <source>purple</source>
        <translation>morado</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>azul</translation>
    </message>
    <message>
        <source>grey</source>
        <translation>gris</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>amarillo</translation>
    </message>
    <message>
        <source>orange</source>
        <translation>naranja</translation>
    </message>
    <message>
        <source>pink</source>
        <translation>rosa</translation>
    </message>
    <message numerus="yes">
        <source>%n Resources</source>
        <translation>
            <numerusform>%n recurso</numerusform>
            <numerusform>%n recursos</numerusform>
        </translation>
    </message>
    <message>
        <source>updating...</source>
        <translation>leyendo...</translation>
    </message>
    <message>
        <source>%1 good, %2 off, %3 alert, %4 error</source>
        <extracomment>A resource group&apos;s states, read aloud: counts</extracomment>
        <translation>%1 bien, %2 apagados, %3 en alerta, %4 con error</translation>
    </message>
</context>
<context>
    <name>lodestar::ReadingController</name>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy All</source>
        <translation>Copiar todo</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>lodestar::ReadingMark</name>
    <message>
        <source>%1 missing</source>
        <extracomment>%1 the name of a feed, as in &quot;partitions&quot;</extracomment>
        <translation>faltan %1</translation>
    </message>
    <message>
        <source>offline %1</source>
        <extracomment>%1 as in &quot;since 02:58&quot;</extracomment>
        <translation>sin conexión %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln of 6 missing</source>
        <extracomment>%n of the six feeds</extracomment>
        <translation>
            <numerusform>falta %Ln de 6</numerusform>
            <numerusform>faltan %Ln de 6</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::ReasonText</name>
    <message>
        <source>Refresh once more.</source>
        <translation>Actualice otra vez.</translation>
    </message>
    <message>
        <source>Check the address.</source>
        <translation>Compruebe la dirección.</translation>
    </message>
    <message>
        <source>Check the address; it may be another service.</source>
        <translation>Compruebe la dirección; puede ser otro servicio.</translation>
    </message>
    <message>
        <source>Tell us through feedback.</source>
        <translation>Díganoslo en los comentarios.</translation>
    </message>
    <message>
        <source>Refresh once more. A busy console often answers the second time.</source>
        <translation>Actualice otra vez. Una consola ocupada suele responder a la segunda.</translation>
    </message>
    <message>
        <source>If the same feed fails again, restart the console’s web service.</source>
        <translation>Si vuelve a fallar la misma fuente, reinicie el servicio web de la consola.</translation>
    </message>
    <message>
        <source>nothing within 10 s</source>
        <translation>nada en 10&#xa0;s</translation>
    </message>
    <message>
        <source>name not found</source>
        <translation>nombre no encontrado</translation>
    </message>
    <message>
        <source>connection refused</source>
        <translation>conexión rechazada</translation>
    </message>
    <message>
        <source>connection broke off</source>
        <translation>conexión cortada</translation>
    </message>
    <message>
        <source>redirected too often</source>
        <translation>demasiadas redirecciones</translation>
    </message>
    <message>
        <source>answer not understood</source>
        <translation>respuesta no entendida</translation>
    </message>
    <message>
        <source>answer too large</source>
        <translation>respuesta demasiado grande</translation>
    </message>
    <message>
        <source>no secure connection</source>
        <translation>sin conexión segura</translation>
    </message>
    <message>
        <source>its certificate changed</source>
        <translation>su certificado cambió</translation>
    </message>
    <message>
        <source>wrong user or password</source>
        <translation>usuario o contraseña incorrectos</translation>
    </message>
    <message>
        <source>the console failed to answer (%1)</source>
        <extracomment>%1 an HTTP status</extracomment>
        <translation>la consola no pudo responder (%1)</translation>
    </message>
    <message>
        <source>answered %1</source>
        <extracomment>%1 an HTTP status</extracomment>
        <translation>respondió %1</translation>
    </message>
    <message>
        <source>no session key</source>
        <translation>sin clave de sesión</translation>
    </message>
    <message>
        <source>It did not answer within 10 s.</source>
        <translation>No respondió en 10&#xa0;s.</translation>
    </message>
    <message>
        <source>Its name has no address.</source>
        <translation>Su nombre no tiene dirección.</translation>
    </message>
    <message>
        <source>Something is there, but refuses port 12443.</source>
        <translation>Hay algo ahí, pero rechaza el puerto 12443.</translation>
    </message>
    <message>
        <source>It broke off while answering.</source>
        <translation>Interrumpió su respuesta.</translation>
    </message>
    <message>
        <source>It sent Lodestar from one address to the next.</source>
        <translation>Envió a Lodestar de una dirección a otra.</translation>
    </message>
    <message>
        <source>What it answered is not HTTP.</source>
        <translation>Lo que respondió no es HTTP.</translation>
    </message>
    <message>
        <source>It answered more than Lodestar takes.</source>
        <translation>Respondió más de lo que Lodestar admite.</translation>
    </message>
    <message>
        <source>It offers no secure connection that this device accepts.</source>
        <translation>No ofrece ninguna conexión segura que este dispositivo acepte.</translation>
    </message>
    <message>
        <source>Its certificate changed in the middle of the attempt. No password was sent.</source>
        <translation>Su certificado cambió en medio del intento. No se envió ninguna contraseña.</translation>
    </message>
    <message>
        <source>It refused the user or the password.</source>
        <translation>Rechazó el usuario o la contraseña.</translation>
    </message>
    <message>
        <source>It answered with an error of its own.</source>
        <translation>Respondió con un error propio.</translation>
    </message>
    <message>
        <source>It gave an answer that was not expected.</source>
        <translation>Dio una respuesta inesperada.</translation>
    </message>
    <message>
        <source>It accepted the logon but gave no key.</source>
        <translation>Aceptó el inicio de sesión, pero no dio clave.</translation>
    </message>
    <message>
        <source>Check that this device is on the right network.</source>
        <translation>Compruebe que este dispositivo está en la red correcta.</translation>
    </message>
    <message>
        <source>A firewall may drop port 12443.</source>
        <translation>Quizá un cortafuegos bloquea el puerto 12443.</translation>
    </message>
    <message>
        <source>Refresh in some minutes; the console may be starting.</source>
        <translation>Actualice en unos minutos; la consola puede estar arrancando.</translation>
    </message>
    <message>
        <source>Check the spelling of the address.</source>
        <translation>Compruebe cómo está escrita la dirección.</translation>
    </message>
    <message>
        <source>Check this device&apos;s network.</source>
        <translation>Compruebe la red de este dispositivo.</translation>
    </message>
    <message>
        <source>Try the number instead of the name.</source>
        <translation>Pruebe con la dirección IP en vez del nombre.</translation>
    </message>
    <message>
        <source>The console may be starting; refresh in some minutes.</source>
        <translation>La consola puede estar arrancando; actualice en unos minutos.</translation>
    </message>
    <message>
        <source>If it stays so, look at what lies between here and the console.</source>
        <translation>Si sigue así, mire qué hay entre aquí y la consola.</translation>
    </message>
    <message>
        <source>Update the console: its TLS may be too old.</source>
        <translation>Actualice la consola: su TLS puede ser demasiado antiguo.</translation>
    </message>
    <message>
        <source>Before you refresh, compare the new fingerprint below with the one that the console shows.</source>
        <translation>Antes de actualizar, compare la huella nueva de abajo con la que muestra la consola.</translation>
    </message>
    <message>
        <source>If they agree, refresh. The new one is then taken.</source>
        <translation>Si coinciden, actualice. Entonces vale la nueva.</translation>
    </message>
    <message>
        <source>If not, something else answers at this address. Do not refresh; ask those who run the network.</source>
        <translation>Si no, otra cosa responde en esta dirección. No actualice; pregunte a quien lleva la red.</translation>
    </message>
    <message>
        <source>Check the user on the console; it may be locked.</source>
        <translation>Compruebe el usuario en la consola; puede estar bloqueado.</translation>
    </message>
    <message>
        <source>Delete the console and add it with the new password.</source>
        <translation>Elimine la consola y añádala con la contraseña nueva.</translation>
    </message>
</context>
<context>
    <name>lodestar::ReportContent</name>
    <message>
        <source>not known</source>
        <translation>desconocido</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>Gravedad</translation>
    </message>
    <message>
        <source>Call home</source>
        <translation>Aviso al fabricante</translation>
    </message>
    <message>
        <source>intended</source>
        <translation>previsto</translation>
    </message>
    <message>
        <source>not intended</source>
        <translation>no previsto</translation>
    </message>
    <message>
        <source>, extension %1</source>
        <extracomment>After a reference code; %1 its extension</extracomment>
        <translation>, extensión %1</translation>
    </message>
    <message>
        <source>Reference code</source>
        <translation>Código de referencia</translation>
    </message>
    <message>
        <source>Firmware fix</source>
        <translation>Corrección de firmware</translation>
    </message>
    <message>
        <source>First reported</source>
        <translation>Primera notificación</translation>
    </message>
    <message>
        <source>Last reported</source>
        <translation>Última notificación</translation>
    </message>
    <message>
        <source>Reported</source>
        <translation>Notificado</translation>
    </message>
    <message>
        <source>Part %1</source>
        <translation>Pieza %1</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ubicación</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Console</source>
        <translation>Consola</translation>
    </message>
    <message>
        <source>Serial</source>
        <translation>N.º de serie</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Leído</translation>
    </message>
    <message>
        <source>Made by %1</source>
        <extracomment>%1 this application with its version</extracomment>
        <translation>Hecho por %1</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Type and model</source>
        <translation>Tipo y modelo</translation>
    </message>
    <message>
        <source>Serviceable event #%1</source>
        <extracomment>%1 the event&apos;s number</extracomment>
        <translation>Evento de servicio #%1</translation>
    </message>
    <message>
        <source>System %1</source>
        <extracomment>%1 a managed system</extracomment>
        <translation>Sistema %1</translation>
    </message>
    <message>
        <source>Attention LED On</source>
        <translation>LED de atención encendido</translation>
    </message>
    <message>
        <source>Available Processing Units</source>
        <translation>Unidades de proceso disponibles</translation>
    </message>
    <message>
        <source>Available Memory</source>
        <translation>Memoria disponible</translation>
    </message>
    <message>
        <source>[address left out]</source>
        <translation>[dirección omitida]</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more times</source>
        <translation>
            <numerusform>%Ln vez más</numerusform>
            <numerusform>%Ln veces más</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::ReportListViewController</name>
    <message>
        <source>Reports</source>
        <translation>Informes</translation>
    </message>
</context>
<context>
    <name>lodestar::ReportViewController</name>
    <message>
        <source>Send</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>Report Exported</source>
        <translation>Informe exportado</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The report could not be exported</source>
        <translation>No se pudo exportar el informe</translation>
    </message>
    <message>
        <source>Delete this report?</source>
        <translation>¿Eliminar este informe?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>The report could not be deleted</source>
        <translation>No se pudo eliminar el informe</translation>
    </message>
</context>
<context>
    <name>lodestar::SEDetailViewController</name>
    <message>
        <source>Main Information</source>
        <translation>Información principal</translation>
    </message>
    <message>
        <source>Associated FRUs</source>
        <translation>FRU asociadas</translation>
    </message>
    <message>
        <source>Event Details</source>
        <translation>Detalles del evento</translation>
    </message>
    <message>
        <source>Problem Number</source>
        <translation>Número de problema</translation>
    </message>
    <message>
        <source>Call Home Intended</source>
        <translation>Aviso al fabricante previsto</translation>
    </message>
    <message>
        <source>Prob Mgmt Hardware Record</source>
        <translation>Registro de hardware del problema</translation>
    </message>
    <message>
        <source>Approval State</source>
        <translation>Estado de aprobación</translation>
    </message>
    <message>
        <source>Reference Code</source>
        <translation>Código de referencia</translation>
    </message>
    <message>
        <source>Reference Code Extension</source>
        <translation>Extensión del código de referencia</translation>
    </message>
    <message>
        <source>System Reference Code</source>
        <translation>Código de referencia del sistema</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Firmware Fix</source>
        <translation>Corrección de firmware</translation>
    </message>
    <message>
        <source>First Reported Time</source>
        <translation>Primera notificación</translation>
    </message>
    <message>
        <source>Last Reported Time</source>
        <translation>Última notificación</translation>
    </message>
    <message>
        <source>Data Event Time</source>
        <translation>Hora del evento</translation>
    </message>
    <message>
        <source>Reporting Console Name</source>
        <translation>Nombre de la consola que notifica</translation>
    </message>
    <message>
        <source>Reporting MTMS</source>
        <translation>MTMS que notifica</translation>
    </message>
    <message>
        <source>Failing MTMS</source>
        <translation>MTMS que falla</translation>
    </message>
    <message>
        <source>Event Text</source>
        <translation>Texto del evento</translation>
    </message>
    <message>
        <source>Event Severity</source>
        <translation>Gravedad del evento</translation>
    </message>
    <message>
        <source>Notification Type</source>
        <translation>Tipo de notificación</translation>
    </message>
    <message>
        <source>Duplicate Count</source>
        <translation>Número de duplicados</translation>
    </message>
    <message>
        <source>Mgmt Console Name</source>
        <translation>Nombre de la consola de gestión</translation>
    </message>
    <message>
        <source>Mgmt Console MTMS</source>
        <translation>MTMS de la consola de gestión</translation>
    </message>
    <message>
        <source>Part Number</source>
        <translation>Número de pieza</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Clase</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Location Code</source>
        <translation>Código de ubicación</translation>
    </message>
    <message>
        <source>Previously Replaced</source>
        <translation>Ya reemplazada</translation>
    </message>
    <message>
        <source>Replaced Timestamp</source>
        <translation>Fecha de reemplazo</translation>
    </message>
    <message>
        <source>Replacement Group</source>
        <translation>Grupo de reemplazo</translation>
    </message>
</context>
<context>
    <name>lodestar::SEListViewController</name>
    <message>
        <source>N/A</source>
        <translation>N/D</translation>
    </message>
</context>
<context>
    <name>lodestar::SearchBarOutlet</name>
    <message>
        <source>All</source>
        <translation>Todo</translation>
    </message>
</context>
<context>
    <name>lodestar::Sentence</name>
    <message>
        <source>, </source>
        <extracomment>Between the parts of a sentence or of a list</extracomment>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>lodestar::ServiceReportController</name>
    <message>
        <source>Service Report</source>
        <translation>Informe de servicio</translation>
    </message>
</context>
<context>
    <name>lodestar::SettingsViewController</name>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
</context>
<context>
    <name>lodestar::VIOSDetailViewController</name>
    <message>
        <source>VIOS Details</source>
        <translation>Detalles de VIOS</translation>
    </message>
</context>
<context>
    <name>lodestar::VIOSViewController</name>
    <message>
        <source>Check</source>
        <translation>Comprobar</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Favorito</translation>
    </message>
</context>
<context>
    <name>lodestar::VersionViewController</name>
    <message>
        <source>Release Notes</source>
        <translation>Notas de la versión</translation>
    </message>
</context>
<context>
    <name>lodestar::WatchConsolesViewController</name>
    <message>
        <source>Consoles</source>
        <translation>Consolas</translation>
    </message>
</context>
<context>
    <name>lodestar::WatchMessages</name>
    <message>
        <source>%1. %2</source>
        <extracomment>Two sentences, the first without its full stop.</extracomment>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Between %1 and %2</source>
        <extracomment>Times of day, as a sentence or with a console before it.</extracomment>
        <translation>Entre %1 y %2</translation>
    </message>
    <message>
        <source>%1, between %2 and %3</source>
        <translation>%1, entre %2 y %3</translation>
    </message>
    <message>
        <source>Last read in full at %1</source>
        <translation>Última lectura completa: %1</translation>
    </message>
    <message>
        <source>%1 is offline</source>
        <extracomment>%1 a console</extracomment>
        <translation>%1 está sin conexión</translation>
    </message>
    <message>
        <source>call home</source>
        <translation>aviso al fabricante</translation>
    </message>
    <message>
        <source>%1: #%2 opened</source>
        <extracomment>%1 a console, %2 the number of an event</extracomment>
        <translation>%1: #%2 abierto</translation>
    </message>
    <message>
        <source>%1 is incomplete</source>
        <translation>%1 está incompleto</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 a console, %2 as in &quot;Partitions not read&quot;
----------
%1 a console, %2 as in &quot;3 things got worse&quot;</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 stopped</source>
        <translation>%1 sin funcionar</translation>
    </message>
    <message>
        <source>%1: LED on</source>
        <translation>%1: LED encendido</translation>
    </message>
    <message>
        <source>%1 is in error</source>
        <translation>%1 tiene un error</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>sin conexión</translation>
    </message>
    <message>
        <source>%1 incomplete</source>
        <translation>%1 en estado incompleto</translation>
    </message>
    <message>
        <source>not read in full</source>
        <translation>no leído por completo</translation>
    </message>
    <message>
        <source>LED on at %1</source>
        <translation>LED encendido en %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new events</source>
        <translation>
            <numerusform>%Ln evento nuevo</numerusform>
            <numerusform>%Ln eventos nuevos</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 in error</source>
        <translation>%1 con error</translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles offline</source>
        <translation>
            <numerusform>%Ln consola sin conexión</numerusform>
            <numerusform>%Ln consolas sin conexión</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln systems in error</source>
        <translation>
            <numerusform>%Ln sistema con error</numerusform>
            <numerusform>%Ln sistemas con error</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln systems incomplete</source>
        <translation>
            <numerusform>%Ln sistema incompleto</numerusform>
            <numerusform>%Ln sistemas incompletos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln IO servers in error</source>
        <translation>
            <numerusform>%Ln servidor E/S con error</numerusform>
            <numerusform>%Ln servidores E/S con error</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln partitions in error</source>
        <translation>
            <numerusform>%Ln partición con error</numerusform>
            <numerusform>%Ln particiones con error</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles not read in full</source>
        <translation>
            <numerusform>%Ln consola no leída por completo</numerusform>
            <numerusform>%Ln consolas no leídas por completo</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln IO servers stopped</source>
        <translation>
            <numerusform>%Ln servidor E/S parado</numerusform>
            <numerusform>%Ln servidores E/S parados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln partitions stopped</source>
        <translation>
            <numerusform>%Ln partición parada</numerusform>
            <numerusform>%Ln particiones paradas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln LEDs on</source>
        <translation>
            <numerusform>%Ln LED encendido</numerusform>
            <numerusform>%Ln LED encendidos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln groups in error</source>
        <translation>
            <numerusform>%Ln grupo con error</numerusform>
            <numerusform>%Ln grupos con error</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln things got worse</source>
        <translation>
            <numerusform>%Ln asunto empeoró</numerusform>
            <numerusform>%Ln asuntos empeoraron</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 on %Ln consoles</source>
        <extracomment>%1 as in &quot;7 things got worse&quot;, %n consoles</extracomment>
        <translation>
            <numerusform>%1 en %Ln consola</numerusform>
            <numerusform>%1 en %Ln consolas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln things remain</source>
        <translation>
            <numerusform>Queda %Ln asunto</numerusform>
            <numerusform>Quedan %Ln asuntos</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is online again</source>
        <translation>%1 vuelve a estar en línea</translation>
    </message>
    <message>
        <source>%1: %2 read again</source>
        <extracomment>%1 a console, %2 the name of a feed, as in &quot;Partitions&quot;</extracomment>
        <translation>%1: %2 de nuevo disponibles</translation>
    </message>
    <message>
        <source>%1: LED off</source>
        <translation>%1: LED apagado</translation>
    </message>
    <message>
        <source>%1 is %2 again</source>
        <extracomment>%1 a name, %2 the console&apos;s word for a state</extracomment>
        <translation>%1 vuelve a estar %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln things got better</source>
        <translation>
            <numerusform>%Ln asunto mejoró</numerusform>
            <numerusform>%Ln asuntos mejoraron</numerusform>
        </translation>
    </message>
    <message>
        <source>After %1</source>
        <extracomment>%1 a console, %2 as in &quot;42 min&quot;</extracomment>
        <translation>Tras %1</translation>
    </message>
    <message>
        <source>%1, after %2</source>
        <translation>%1, tras %2</translation>
    </message>
    <message>
        <source>In the night, %1</source>
        <extracomment>%1 as in &quot;5 things got worse&quot;</extracomment>
        <translation>Por la noche, %1</translation>
    </message>
    <message>
        <source>None of them needs attention any more</source>
        <translation>Ya nada de eso requiere atención</translation>
    </message>
    <message numerus="yes">
        <source>%Ln of them still need attention</source>
        <translation>
            <numerusform>%Ln de ellos aún requiere atención</numerusform>
            <numerusform>%Ln de ellos aún requieren atención</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles need attention</source>
        <translation>
            <numerusform>%Ln consola requiere atención</numerusform>
            <numerusform>%Ln consolas requieren atención</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing known needs attention</source>
        <translation>Nada conocido requiere atención</translation>
    </message>
    <message>
        <source>Open Lodestar to see more</source>
        <translation>Abra Lodestar para ver más</translation>
    </message>
    <message>
        <source>Lodestar can reach you</source>
        <translation>Lodestar puede avisarle</translation>
    </message>
    <message>
        <source>This is how a message looks</source>
        <translation>Así se ve un mensaje</translation>
    </message>
</context>
<context>
    <name>lodestar::WatchText</name>
    <message>
        <source>every %1</source>
        <extracomment>%1 as in &quot;15 min&quot;</extracomment>
        <translation>cada %1</translation>
    </message>
    <message>
        <source>off</source>
        <translation>inactiva</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>open</source>
        <translation>abiertos</translation>
    </message>
    <message>
        <source>open, call home</source>
        <translation>abiertos con aviso</translation>
    </message>
    <message>
        <source>all %1</source>
        <translation>todas (%1)</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 are left out until you refresh them by hand: their certificates changed.</source>
        <extracomment>%1 the names of so many consoles</extracomment>
        <translation>
            <numerusform>%1 queda fuera hasta que actualice a mano: su certificado cambió.</numerusform>
            <numerusform>%1 quedan fuera hasta que actualice a mano: sus certificados cambiaron.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln h</source>
        <translation>
            <numerusform>%Ln&#xa0;h</numerusform>
            <numerusform>%Ln&#xa0;h</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln min</source>
        <translation>
            <numerusform>%Ln&#xa0;min</numerusform>
            <numerusform>%Ln&#xa0;min</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::WatchViewController</name>
    <message>
        <source>Watch</source>
        <translation>Vigilancia</translation>
    </message>
    <message>
        <source>This system shows no messages. Attention still counts.</source>
        <translation>Este sistema no muestra mensajes. «Atención» sigue contando.</translation>
    </message>
    <message>
        <source>Reading goes on. At %1 one message sums up the night, if anything got worse.</source>
        <extracomment>%1 a time of day</extracomment>
        <translation>La lectura sigue. A las %1 un mensaje resume la noche, si algo empeoró.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>Intervalo</translation>
    </message>
    <message>
        <source>New Events</source>
        <translation>Eventos nuevos</translation>
    </message>
</context>
<context>
    <name>lodestar::WindowDialogs</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Watches Corvel consoles and changes nothing.</source>
        <translation>Vigila consolas Corvel y no cambia nada.</translation>
    </message>
    <message>
        <source>Keep everything in this folder.</source>
        <translation>Guardar todo en esta carpeta.</translation>
    </message>
    <message>
        <source>Offer to send feedback and crash reports to this https address.</source>
        <translation>Ofrecer el envío de comentarios e informes de fallos a esta dirección https.</translation>
    </message>
    <message>
        <source>Fill the screen.</source>
        <translation>Llenar la pantalla.</translation>
    </message>
    <message>
        <source>Leave once the first screen is drawn, for measuring.</source>
        <translation>Salir al dibujar la primera pantalla, para medir.</translation>
    </message>
    <message>
        <source>Speak this language instead of the system&apos;s (en, de, fr, es, ja, ar).</source>
        <extracomment>In brackets codes, which stay as they are</extracomment>
        <translation>Hablar este idioma en vez del del sistema (en, de, fr, es, ja, ar).</translation>
    </message>
</context>
</TS>
