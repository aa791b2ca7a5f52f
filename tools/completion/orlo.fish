# Completion of orlo for fish.

complete -c orlo -f
for suffix in step stp iges igs stl wrl vrml obj gltf glb ply 3mf dae off
    complete -c orlo -k -a "(__fish_complete_suffix .$suffix)"
    complete -c orlo -l render -r -k -a "(__fish_complete_suffix .$suffix)" -d 'Write one picture of a model'
end
complete -c orlo -l edition -x -a 'essentials design professional enterprise' -d 'The edition to be'
complete -c orlo -l app-name -x -d 'The name of the application'
complete -c orlo -l store -r -F -d 'Where the preferences are kept'
complete -c orlo -l plugin -r -F -d 'The preferences plug-in'
complete -c orlo -l sample -d 'Open a small assembly that the program builds itself'
complete -c orlo -l save -r -F -d 'Write the model in the format of the suffix'
complete -c orlo -l output -r -F -d 'Where the picture goes'
complete -c orlo -l aids -d 'Show cameras, lights and the cube too'
complete -c orlo -l edges -d 'Draw the borders of surfaces'
complete -c orlo -l unit -x -a 'mm cm m in ft' -d 'The unit of a model that does not say it'
complete -c orlo -l up -x -a 'y z' -d 'What is up in a model that does not say it'
complete -c orlo -l size -x -a '1280x720 1920x1080 3840x2160' -d 'How large the picture is'
complete -c orlo -l set -x -d 'A setting for this run, KEY=VALUE'
complete -c orlo -l preferences -d 'Open the preferences beside the view'
complete -c orlo -l setting -x -d 'Open the preferences at a setting'
complete -c orlo -l tour -x -a '(__fish_complete_directories)' -d 'Apply a change and leave pictures in a folder'
complete -c orlo -l help -d 'How to use the program'
complete -c orlo -l version -d 'Print the version'
